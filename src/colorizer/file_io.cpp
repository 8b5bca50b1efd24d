#include "colorizer/file_io.h"

#include <chrono>
#include <fstream>
#include <functional>
#include <string>
#include <thread>

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

/// A name that no other pass uses at the same time: made from the time in ticks, the thread and
/// where its stack lies. (std::random_device would cost more than all the rest of a small picture's
/// pass.)
fs::path NewNameBeside(const fs::path& path) {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::uint64_t bits =
        static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    for (const std::uint64_t more :
         {std::uint64_t{std::hash<std::thread::id>()(std::this_thread::get_id())},
          std::uint64_t{reinterpret_cast<std::uintptr_t>(&bits)}}) {
        bits = (bits ^ more) * 0x9E3779B97F4A7C15u;
    }
    std::string name = "colorizer-";
    for (int shift = 60; shift >= 0; shift -= 4)
        name += kDigits[bits >> shift & 15];
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

    bool RenameTo(const fs::path& path, const FileHooks& hooks) {
        std::error_code error;
        if (hooks.replace) {
            renamed_ = hooks.replace(path_, path);
        } else {
            fs::rename(path_, path, error);
            renamed_ = !error;
        }
        return renamed_;
    }

  private:
    fs::path path_;
    bool renamed_ = false;
};

}  // namespace

std::vector<std::uint8_t> ReadFile(const fs::path& path) {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(path, error);  // an error for what is not a file
    if (error) throw Error("The file " + Name(path) + " does not exist.");
    if (size > kMaxFileBytes) throw Error("The file " + Name(path) + " is too long.");
    std::filebuf file;
    if (!Open(file, path, std::ios::in))
        throw Error("The file " + Name(path) + " cannot be opened.");
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    const auto count = static_cast<std::streamsize>(size);
    if (file.sgetn(reinterpret_cast<char*>(bytes.data()), count) != count) {
        throw Error("The file " + Name(path) + " cannot be read.");
    }
    return bytes;
}

void WriteWholeFile(const fs::path& path, std::span<const std::uint8_t> bytes,
                    const FileHooks& hooks) {
    std::error_code error;
    fs::file_status status = fs::symlink_status(path, error);
    if (fs::is_symlink(status)) {
        const fs::path target = fs::canonical(path, error);
        if (error) throw Error("The link " + Name(path) + " leads to no file.");
        return WriteWholeFile(target, bytes, hooks);
    }
    const bool exists = fs::exists(status);
    if (exists && !fs::is_regular_file(status)) throw Error(Name(path) + " is not a file.");
    if (exists && (status.permissions() & fs::perms::owner_write) == fs::perms::none) {
        throw Error("The file " + Name(path) + " is write-protected.");
    }
    NewFile file(NewNameBeside(path));
    if (!file.Write(bytes) || (exists && !file.SetPermissions(status.permissions())) ||
        !file.RenameTo(path, hooks)) {
        throw Error("The file " + Name(path) + " cannot be written.");
    }
}

bool IsSameFile(const fs::path& left, const fs::path& right) {
    if (left == right) return true;
    std::error_code error;
    return fs::equivalent(left, right, error) && !error;
}

FileStamp FileStamp::Of(const fs::path& path, const FileHooks& hooks) {
    std::error_code error;
    FileStamp stamp;
    stamp.time = fs::last_write_time(path, error);
    if (!error) stamp.size = fs::file_size(path, error);
    if (!error && hooks.version) stamp.version = hooks.version(path);
    return error ? FileStamp{} : stamp;
}

}  // namespace colorizer
