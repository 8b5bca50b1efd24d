#include "linux/whole_file.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>

#include <atomic>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <fstream>
#include <memory>

#include "linux/disk_path.h"
#include "linux/file_error.h"

namespace morpho {

namespace {

constexpr std::size_t kChunk = 256UL * 1024;
constexpr uid_t kSameOwner = -1;
constexpr std::string_view kCannotWrite = "could not be written";

// Reads at most `size` bytes; throws when that fails.
std::size_t ReadSome(const Descriptor& file, char* into, std::size_t size,
                     const std::string& diskPath) {
    for (;;) {
        const ssize_t count = ::read(file.Number(), into, size);
        if (count >= 0) return static_cast<std::size_t>(count);
        if (errno != EINTR) throw FileError(errno, diskPath, "could not be read");
    }
}

constexpr std::string_view kBesideStart = ".morpho-";
constexpr std::string_view kBesideEnd = ".tmp";

// A short name, so that it fits beside a file whose own name is as long as can be.
std::string NameBeside() {
    static std::atomic<unsigned> serial = 0;
    return std::string(kBesideStart) + std::to_string(::getpid()) + '-' + std::to_string(++serial) +
           std::string(kBesideEnd);
}

bool IsRunning(pid_t program) {
    if (::kill(program, 0) != 0 && errno == ESRCH) return false;
    // One that has died is listed, as a zombie, until its parent has taken notice.
    std::string status;
    std::getline(std::ifstream("/proc/" + std::to_string(program) + "/stat"), status);
    const std::size_t state = status.rfind(") ");
    return state == status.npos || !status.substr(state).starts_with(") Z");
}

}  // namespace

bool WriteAll(int number, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(number, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) return false;
        if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool IsBesideName(std::string_view name) {
    return name.size() > kBesideStart.size() + kBesideEnd.size() &&
           name.starts_with(kBesideStart) && name.ends_with(kBesideEnd);
}

bool IsAbandonedBesideName(std::string_view name) {
    if (!IsBesideName(name)) return false;
    name.remove_prefix(kBesideStart.size());
    pid_t program = 0;
    const auto [stop, error] = std::from_chars(name.data(), name.data() + name.size(), program);
    return error == std::errc() && *stop == '-' && program > 0 && !IsRunning(program);
}

std::string ReadWhole(const Descriptor& file, const std::string& diskPath) {
    struct stat status = {};
    std::string bytes;
    // One byte more than the file's size, so that its end is met without growing.
    if (::fstat(file.Number(), &status) == 0)
        bytes.resize(static_cast<std::size_t>(status.st_size) + 1);
    std::size_t filled = 0;
    for (;;) {
        if (filled == bytes.size()) bytes.resize(bytes.size() + kChunk);
        const std::size_t count =
            ReadSome(file, bytes.data() + filled, bytes.size() - filled, diskPath);
        if (count == 0) break;
        filled += count;
    }
    bytes.resize(filled);
    return bytes;
}

bool HoldsSameBytes(const std::string& diskPath, const Descriptor& source,
                    const std::string& sourcePath) {
    const int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const Descriptor file(::open(diskPath.c_str(), flags));
    struct stat ours = {};
    struct stat theirs = {};
    if (!file.IsOpen() || ::fstat(file.Number(), &ours) != 0 || !S_ISREG(ours.st_mode) ||
        ::fstat(source.Number(), &theirs) != 0 || ours.st_size != theirs.st_size)
        return false;
    const bool same = ReadWhole(file, diskPath) == ReadWhole(source, sourcePath);
    if (::lseek(source.Number(), 0, SEEK_SET) != 0)
        throw FileError(errno, sourcePath, "could not be read");
    return same;
}

WholeFile::WholeFile(std::string diskPath, Durability durability)
    : path_(std::move(diskPath)), durability_(durability) {
    OpenBeside();
    try {
        KeepOwnerAndMode();
    } catch (...) {
        ::unlink(besidePath_.c_str());
        throw;
    }
}

WholeFile::~WholeFile() {
    if (!besidePath_.empty()) ::unlink(besidePath_.c_str());
}

void WholeFile::OpenBeside() {
    do {
        besidePath_ = JoinDiskPath(ParentFolder(path_), NameBeside());
        file_ =
            Descriptor(::open(besidePath_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    } while (!file_.IsOpen() && errno == EEXIST);
    if (!file_.IsOpen()) throw FileError(errno, path_, kCannotWrite);
}

void WholeFile::KeepOwnerAndMode() {
    struct stat status = {};
    if (::lstat(path_.c_str(), &status) != 0) return;
    if (S_ISDIR(status.st_mode)) throw FileError(EISDIR, path_, kCannotWrite);
    if (!S_ISREG(status.st_mode)) return;
    if ((status.st_mode & S_IWUSR) == 0)
        throw FileError(ErrorNumber::kPathFileAccess, path_, kCannotWrite, "it is read-only");
    if (::fchown(file_.Number(), status.st_uid, status.st_gid) != 0 &&
        ::fchown(file_.Number(), kSameOwner, status.st_gid) != 0) {
        // Then it is the user's own file, as any program's that saves so.
    }
    ::fchmod(file_.Number(), status.st_mode & 0777U);
}

void WholeFile::Write(std::string_view bytes) {
    if (!WriteAll(file_.Number(), bytes)) throw FileError(errno, path_, kCannotWrite);
}

void WholeFile::CopyFrom(const Descriptor& file, const std::string& source) {
    const auto chunk = std::make_unique_for_overwrite<char[]>(kChunk);
    while (const std::size_t count = ReadSome(file, chunk.get(), kChunk, source))
        Write({chunk.get(), count});
}

void WholeFile::Commit() {
    if (durability_ == Durability::kFlushed && ::fsync(file_.Number()) != 0)
        throw FileError(errno, path_, kCannotWrite);
    if (!file_.Close()) throw FileError(errno, path_, kCannotWrite);
    if (::rename(besidePath_.c_str(), path_.c_str()) != 0)
        throw FileError(errno, path_, kCannotWrite);
    besidePath_.clear();
}

}  // namespace morpho
