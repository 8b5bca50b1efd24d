#include <new>
#include <variant>

#include "colorizer/colorizer.h"
#include "colorizer/file_io.h"
#include "colorizer/gif.h"
#include "colorizer/jpeg_picture.h"
#include "colorizer/recolor_jpeg.h"

namespace colorizer {

namespace {

using Bytes = std::vector<std::uint8_t>;

/// A file in the form in which it is recoloured: a GIF's bytes, a JPEG's parts.
using Picture = std::variant<std::monostate, Bytes, JpegPicture>;

void CheckQuality(std::optional<int> quality) {
    if (quality && (*quality < 1 || *quality > 100))
        throw Error("The JPEG quality must lie between 1 and 100.");
}

void CheckFormat(std::span<const std::uint8_t> file) {
    if (!IsGif(file) && !IsJpeg(file)) throw Error("The file is neither a GIF nor a JPEG picture.");
}

Picture TakeApart(Bytes file) {
    if (IsJpeg(file)) return ReadJpeg(file);
    return file;
}

/// Recolours the picture in place. Returns the bytes of its new file: the picture's own, or
/// `encoded`.
std::span<const std::uint8_t> RecolorPicture(Picture& picture, const ColourMap& map,
                                             std::optional<int> quality, std::size_t sizeHint,
                                             Bytes& encoded) {
    if (auto* jpeg = std::get_if<JpegPicture>(&picture)) {
        JpegRecoloring recoloring(*jpeg, map, quality);
        encoded = WriteJpeg(*jpeg, recoloring, sizeHint);
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

    bool Holds(const std::filesystem::path& file) const {
        return picture.index() != 0 && stamp.IsValid() && file == path &&
               FileStamp::Of(file) == stamp;
    }
};

Recolorer::Recolorer() = default;
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
    const bool isRemembered = memory_ && memory_->Holds(source);
    Bytes file;
    if (!isRemembered) {
        file = ReadFile(source);
        CheckFormat(file);
    }
    const bool isJpeg =
        isRemembered ? std::holds_alternative<JpegPicture>(memory_->picture) : IsJpeg(file);
    if (IsCopy(adjustment, quality, isJpeg)) {
        if (!IsSameFile(source, destination))
            ReplaceFile(destination, isRemembered ? ReadFile(source) : file);
        return;
    }
    const std::size_t sizeHint = isRemembered ? memory_->stamp.size : file.size();
    Picture picture = isRemembered ? std::move(memory_->picture) : TakeApart(std::move(file));
    Forget();
    Bytes encoded;
    ReplaceFile(destination, RecolorPicture(picture, map, quality, sizeHint, encoded));
    memory_ = std::make_unique<Memory>(
        Memory{destination, FileStamp::Of(destination), std::move(picture)});
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
    Picture picture = TakeApart(std::move(bytes));
    Bytes encoded;
    RecolorPicture(picture, map, quality, file.size(), encoded);
    return encoded.empty() ? std::get<Bytes>(std::move(picture)) : encoded;
} catch (const std::bad_alloc&) {
    throw Error("There is not enough memory for the picture.");
}

}  // namespace colorizer
