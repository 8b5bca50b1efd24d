#include "colorizer/file_io.h"

#include <fstream>
#include <random>
#include <string>

#include "colorizer/colorizer.h"

namespace fs = std::filesystem;

namespace colorizer {

namespace {

/// A file's name for a sentence. UTF-8.
std::string Name(const fs::path& path) {
    const std::u8string name = path.filename().u8string();
    return "\"" + std::string(name.begin(), name.end()) + "\"";
}

/// Opens without a buffer: whole files are read and written in one call.
bool Open(std::filebuf& file, const fs::path& path, std::ios::openmode mode) {
    file.pubsetbuf(nullptr, 0);
    return file.open(path, mode | std::ios::binary) != nullptr;
}

fs::path NewNameBeside(const fs::path& path) {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::random_device random;
    std::string name = "colorizer-";
    for (int word = 0; word < 2; ++word) {
        unsigned bits = random();
        for (int digit = 0; digit < 8; ++digit, bits >>= 4)
            name += kDigits[bits & 15];
    }
    return path.parent_path() / (name + ".tmp");
}

/// A file that is removed again unless it was renamed.
class NewFile {
  public:
    explicit NewFile(fs::path path) : path_(std::move(path)) {}
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() {
        std::error_code ignored;
        if (!renamed_) fs::remove(path_, ignored);
    }

    bool Write(std::span<const std::uint8_t> bytes) {
        std::filebuf file;
        if (!Open(file, path_, std::ios::out | std::ios::trunc)) return false;
        const auto count = static_cast<std::streamsize>(bytes.size());
        const bool written =
            file.sputn(reinterpret_cast<const char*>(bytes.data()), count) == count;
        return file.close() != nullptr && written;
    }

    bool SetPermissions(fs::perms permissions) {
        std::error_code error;
        fs::permissions(path_, permissions, error);
        return !error;
    }

    bool RenameTo(const fs::path& path) {
        std::error_code error;
        fs::rename(path_, path, error);
        renamed_ = !error;
        return renamed_;
    }

  private:
    fs::path path_;
    bool renamed_ = false;
};

}  // namespace

std::vector<std::uint8_t> ReadFile(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error))
        throw Error("The file " + Name(path) + " does not exist.");
    std::filebuf file;
    if (!Open(file, path, std::ios::in))
        throw Error("The file " + Name(path) + " cannot be opened.");
    const std::streamoff size = file.pubseekoff(0, std::ios::end);
    if (size < 0 || file.pubseekpos(0) != 0)
        throw Error("The file " + Name(path) + " cannot be read.");
    if (static_cast<std::uintmax_t>(size) > kMaxFileBytes)
        throw Error("The file " + Name(path) + " is too long.");
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    if (file.sgetn(reinterpret_cast<char*>(bytes.data()), size) != size) {
        throw Error("The file " + Name(path) + " cannot be read.");
    }
    return bytes;
}

void ReplaceFile(const fs::path& path, std::span<const std::uint8_t> bytes) {
    std::error_code error;
    fs::file_status status = fs::symlink_status(path, error);
    if (fs::is_symlink(status)) {
        const fs::path target = fs::canonical(path, error);
        if (error) throw Error("The link " + Name(path) + " leads to no file.");
        return ReplaceFile(target, bytes);
    }
    const bool exists = fs::exists(status);
    if (exists && !fs::is_regular_file(status)) throw Error(Name(path) + " is not a file.");
    if (exists && (status.permissions() & fs::perms::owner_write) == fs::perms::none) {
        throw Error("The file " + Name(path) + " is write-protected.");
    }
    NewFile file(NewNameBeside(path));
    if (!file.Write(bytes) || (exists && !file.SetPermissions(status.permissions())) ||
        !file.RenameTo(path)) {
        throw Error("The file " + Name(path) + " cannot be written.");
    }
}

bool IsSameFile(const fs::path& left, const fs::path& right) {
    if (left == right) return true;
    std::error_code error;
    return fs::equivalent(left, right, error) && !error;
}

FileStamp FileStamp::Of(const fs::path& path) {
    std::error_code error;
    FileStamp stamp;
    stamp.time = fs::last_write_time(path, error);
    if (!error) stamp.size = fs::file_size(path, error);
    return error ? FileStamp{} : stamp;
}

}  // namespace colorizer
