#include "linux/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
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

}  // namespace

bool WriteAll(int number, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(number, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) return false;
        if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

std::string ReadPiece(const Descriptor& file, std::uint64_t offset, std::size_t count,
                      const std::string& diskPath) {
    std::string bytes(count, '\0');
    std::size_t filled = 0;
    while (filled < count) {
        const ssize_t got = ::pread(file.Number(), bytes.data() + filled, count - filled,
                                    static_cast<off_t>(offset + filled));
        if (got < 0 && errno != EINTR) throw FileError(errno, diskPath, "could not be read");
        if (got == 0) break;
        if (got > 0) filled += static_cast<std::size_t>(got);
    }
    bytes.resize(filled);
    return bytes;
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
    : path_(std::move(diskPath)), name_(LastName(path_)), model_(name_), durability_(durability) {
    // Without read permission on the folder its files can still be replaced.
    folder_ = Descriptor(::open(ParentFolder(path_).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folder_.IsOpen()) throw FileError(errno, path_, kCannotWrite);
    Open();
}

WholeFile::WholeFile(const Descriptor& folder, const std::string& folderPath, std::string name,
                     Durability durability, std::string model)
    : path_(JoinDiskPath(folderPath, name)),
      name_(std::move(name)),
      model_(model.empty() ? name_ : std::move(model)),
      durability_(durability) {
    folder_ = Descriptor(::fcntl(folder.Number(), F_DUPFD_CLOEXEC, 0));
    if (!folder_.IsOpen()) throw FileError(errno, path_, kCannotWrite);
    Open();
}

WholeFile::~WholeFile() {
    if (!temporaryName_.empty()) ::unlinkat(folder_.Number(), temporaryName_.c_str(), 0);
}

void WholeFile::Open() {
    OpenTemporary();
    try {
        KeepOwnerAndMode();
    } catch (...) {
        ::unlinkat(folder_.Number(), temporaryName_.c_str(), 0);
        throw;
    }
}

void WholeFile::OpenTemporary() {
    const int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    do {
        temporaryName_ = NewTemporaryName(static_cast<std::uint64_t>(::getpid()));
        file_ = Descriptor(::openat(folder_.Number(), temporaryName_.c_str(), flags, 0666));
    } while (!file_.IsOpen() && errno == EEXIST);
    if (file_.IsOpen()) return;
    temporaryName_.clear();
    throw FileError(errno, path_, kCannotWrite);
}

void WholeFile::KeepOwnerAndMode() {
    struct stat status = {};
    if (::fstatat(folder_.Number(), model_.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return;
    if (S_ISDIR(status.st_mode)) throw FileError(EISDIR, path_, kCannotWrite);
    if (!S_ISREG(status.st_mode)) return;
    if ((status.st_mode & S_IWUSR) == 0)
        throw FileError(ErrorNumber::kPathFileAccess, path_, kCannotWrite, "it is read-only");
    if (::fchown(file_.Number(), status.st_uid, status.st_gid) != 0 &&
        ::fchown(file_.Number(), kSameOwner, status.st_gid) != 0) {
        // Then the file belongs to this user, as with any program that saves by renaming.
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
    if (::renameat(folder_.Number(), temporaryName_.c_str(), folder_.Number(), name_.c_str()) != 0)
        throw FileError(errno, path_, kCannotWrite);
    temporaryName_.clear();
}

}  // namespace morpho
