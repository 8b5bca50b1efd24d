#include <new>
#include <variant>

#include "colorizer/file_io.h"
#include "colorizer/gif.h"
#include "colorizer/jpeg_pass.h"
#include "colorizer/recolorer.h"

namespace colorizer {

namespace {

using Bytes = std::vector<std::uint8_t>;

/// A file in the form in which it is recoloured: a GIF's bytes, a JPEG's parts.
using Picture = std::variant<std::monostate, Bytes, JpegPicture>;

void CheckQuality(std::optional<int> quality) {
    if (quality && (*quality < kLeastQuality || *quality > kMostQuality))
        throw Error("The JPEG quality must lie between 1 and 100.");
}

void CheckFormat(std::span<const std::uint8_t> file) {
    if (!IsGif(file) && !IsJpeg(file)) throw Error("The file is neither a GIF nor a JPEG picture.");
}

/// Recolours a file that was read. `picture` becomes what the new file holds. Returns that file's
/// bytes, which may be the picture's own or `encoded`.
std::span<const std::uint8_t> RecolorFile(Bytes file, const ColourMap& map,
                                          std::optional<int> quality, Picture& picture,
                                          Bytes& encoded) {
    if (IsJpeg(file)) {
        encoded = RecolorJpeg(file, map, quality, picture.emplace<JpegPicture>());
        return encoded;
    }
    Bytes& gif = picture.emplace<Bytes>(std::move(file));
    RecolorGif(gif, map);
    return gif;
}

/// The same for a picture that is remembered, whose file has `size` bytes.
std::span<const std::uint8_t> RecolorAgain(Picture& picture, const ColourMap& map,
                                           std::optional<int> quality, std::uintmax_t size,
                                           Bytes& encoded) {
    if (auto* jpeg = std::get_if<JpegPicture>(&picture)) {
        encoded = RecolorJpeg(*jpeg, map, quality, static_cast<std::size_t>(size));
        return encoded;
    }
    Bytes& gif = std::get<Bytes>(picture);
    RecolorGif(gif, map);
    return gif;
}

/// True when the pass leaves every byte as it is.
bool IsCopy(const Adjustment& adjustment, std::optional<int> quality, bool isJpeg) {
    return adjustment.IsNeutral() && !(quality && isJpeg);
}

}  // namespace

/// The picture written last, as it stands in its file.
struct Recolorer::Memory {
    std::filesystem::path path;
    FileStamp stamp;
    Picture picture;

    bool Holds(const std::filesystem::path& file, const FileHooks& hooks) const {
        return picture.index() != 0 && stamp.IsValid() && file == path &&
               FileStamp::Of(file, hooks) == stamp;
    }
};

Recolorer::Recolorer(FileHooks hooks) : hooks_(std::move(hooks)) {}
Recolorer::~Recolorer() = default;
Recolorer::Recolorer(Recolorer&&) noexcept = default;
Recolorer& Recolorer::operator=(Recolorer&&) noexcept = default;

void Recolorer::Forget() {
    memory_.reset();
}

void Recolorer::Recolor(const std::filesystem::path& source,
                        const std::filesystem::path& destination, const Adjustment& adjustment,
                        std::optional<int> quality) try {
    const ColourMap map(adjustment);
    CheckQuality(quality);
    const bool isRemembered = memory_ && memory_->Holds(source, hooks_);
    Bytes file;
    if (!isRemembered) {
        file = ReadFile(source);
        CheckFormat(file);
    }
    const bool isJpeg =
        isRemembered ? std::holds_alternative<JpegPicture>(memory_->picture) : IsJpeg(file);
    if (IsCopy(adjustment, quality, isJpeg)) {
        if (!IsSameFile(source, destination))
            WriteWholeFile(destination, isRemembered ? ReadFile(source) : file, hooks_);
        return;
    }
    Picture picture;
    Bytes encoded;
    if (isRemembered) {
        picture = std::move(memory_->picture);
        const std::uintmax_t size = memory_->stamp.size;
        Forget();
        WriteWholeFile(destination, RecolorAgain(picture, map, quality, size, encoded), hooks_);
    } else {
        Forget();
        WriteWholeFile(destination, RecolorFile(std::move(file), map, quality, picture, encoded),
                       hooks_);
    }
    memory_ = std::make_unique<Memory>(
        Memory{destination, FileStamp::Of(destination, hooks_), std::move(picture)});
} catch (const std::bad_alloc&) {
    throw Error("There is not enough memory for the picture.");
}

std::vector<std::uint8_t> Recolored(std::span<const std::uint8_t> file,
                                    const Adjustment& adjustment, std::optional<int> quality) try {
    const ColourMap map(adjustment);
    CheckQuality(quality);
    CheckFormat(file);
    Bytes bytes(file.begin(), file.end());
    if (IsCopy(adjustment, quality, IsJpeg(file))) return bytes;
    Picture picture;
    Bytes encoded;
    RecolorFile(std::move(bytes), map, quality, picture, encoded);
    return encoded.empty() ? std::get<Bytes>(std::move(picture)) : encoded;
} catch (const std::bad_alloc&) {
    throw Error("There is not enough memory for the picture.");
}

}  // namespace colorizer
