#include "linux/disk_file_system.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "linux/copy_folder.h"
#include "linux/disk_folder.h"
#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

// The path of the disk for an operation that needs one.
std::string Located(std::string_view path) {
    if (auto diskPath = FindOnDisk(path)) return *diskPath;
    throw FileError(ErrorNumber::kPathNotFound, path, "cannot be reached",
                    "it is no path below \"Z:\\\"");
}

// Nothing for what is neither a file nor a folder.
std::optional<FileEntry> EntryOf(int folder, const std::string& path, std::string_view name) {
    struct stat status = {};
    if (::fstatat(folder, path.c_str(), &status, 0) != 0) return {};
    if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode)) return {};
    FileEntry entry;
    entry.name = NameFromDisk(name);
    if ((status.st_mode & S_IWUSR) == 0) entry.attributes |= kReadOnlyAttribute;
    if (S_ISDIR(status.st_mode)) {
        entry.attributes |= kFolderAttribute;
    } else {
        entry.size = static_cast<std::uint64_t>(status.st_size);
    }
    return entry;
}

Descriptor OpenForReading(const std::string& diskPath) {
    // Without O_NONBLOCK, opening a pipe would wait for a writer.
    Descriptor file(::open(diskPath.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.IsOpen()) throw FileError(errno, diskPath, "could not be read");
    struct stat status = {};
    if (::fstat(file.Number(), &status) != 0) throw FileError(errno, diskPath, "could not be read");
    if (S_ISDIR(status.st_mode)) throw FileError(EISDIR, diskPath, "could not be read");
    if (!S_ISREG(status.st_mode))
        throw FileError(ErrorNumber::kPathFileAccess, diskPath, "could not be read",
                        "it is not a file");
    return file;
}

bool IsFolderItself(const std::string& diskPath) {
    struct stat status = {};
    return ::lstat(diskPath.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

void CopyWhole(const std::string& from, const std::string& to, Durability durability) {
    const Descriptor source = OpenForReading(from);
    WholeFile copy(to, durability);
    copy.CopyFrom(source, from);
    copy.Commit();
}

void Unlink(const std::string& diskPath) {
    if (::unlink(diskPath.c_str()) != 0) throw FileError(errno, diskPath, "could not be deleted");
}

}  // namespace

DiskFileSystem::DiskFileSystem(std::string scratchFolder)
    : scratchFolder_(std::move(scratchFolder)) {}

std::optional<FileEntry> DiskFileSystem::Find(std::string_view path) const {
    const auto diskPath = FindOnDisk(path);
    if (!diskPath) return {};
    return EntryOf(AT_FDCWD, *diskPath, LastName(*diskPath));
}

std::vector<FileEntry> DiskFileSystem::List(std::string_view folder) const {
    const DiskFolder open = DiskFolder::Open(Located(folder), true);
    std::vector<FileEntry> entries;
    for (const DiskEntry& entry : open.Entries()) {
        if (auto found = EntryOf(open.Number(), entry.name, entry.name))
            entries.push_back(std::move(*found));
    }
    std::stable_sort(entries.begin(), entries.end(), [](const FileEntry& a, const FileEntry& b) {
        return Folded(a.name) < Folded(b.name);
    });
    return entries;
}

std::string DiskFileSystem::ReadFile(std::string_view path) const {
    const std::string diskPath = Located(path);
    return ReadWhole(OpenForReading(diskPath), diskPath);
}

std::string DiskFileSystem::ReadPart(std::string_view path, std::uint64_t offset,
                                     std::size_t count) const {
    const std::string diskPath = Located(path);
    return ReadPiece(OpenForReading(diskPath), offset, count, diskPath);
}

void DiskFileSystem::WriteFile(std::string_view path, std::string_view bytes) {
    WriteFile(path, [&](const ByteSink& sink) { sink(bytes); });
}

void DiskFileSystem::WriteFile(std::string_view path,
                               const std::function<void(const ByteSink&)>& write) {
    const std::string diskPath = Located(path);
    WholeFile file(diskPath, DurabilityOf(diskPath));
    write([&](std::string_view piece) { file.Write(piece); });
    file.Commit();
}

void DiskFileSystem::AppendFile(std::string_view path, std::string_view bytes) {
    const std::string diskPath = Located(path);
    const auto failure = [&](int code) {
        return FileError(code, diskPath, "could not be written");
    };
    const int flags = O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK | O_CLOEXEC;
    Descriptor file(::open(diskPath.c_str(), flags, 0666));
    if (!file.IsOpen()) throw failure(errno);
    // The lock is held while half a line is cut off again, so that the cut never removes what
    // another program has appended.
    ::flock(file.Number(), LOCK_EX);
    struct stat status = {};
    if (::fstat(file.Number(), &status) != 0) throw failure(errno);
    if (!S_ISREG(status.st_mode)) throw failure(EINVAL);
    if (!WriteAll(file.Number(), bytes)) {
        const int code = errno;
        if (::ftruncate(file.Number(), status.st_size) != 0) throw failure(errno);
        throw failure(code);
    }
    if (!file.Close()) throw failure(errno);
}

void DiskFileSystem::Copy(std::string_view source, std::string_view destination) {
    const std::string to = Located(destination);
    CopyWhole(Located(source), to, DurabilityOf(to));
}

void DiskFileSystem::Move(std::string_view source, std::string_view destination) {
    const std::string from = Located(source);
    // A name that changes only its letter case finds the file itself; then the new spelling counts.
    std::string to = Located(destination);
    if (to == from) to = ToDiskPath(destination).value_or(to);
    if (IsFolderItself(to)) throw FileError(EISDIR, to, "could not be replaced");
    if (::rename(from.c_str(), to.c_str()) == 0) return;
    if (errno == EXDEV) {
        CopyWhole(from, to, DurabilityOf(to));
        return Unlink(from);
    }
    const int code = errno;
    struct stat status = {};
    const bool sourceIsThere = ::lstat(from.c_str(), &status) == 0;
    throw FileError(code, code == ENOENT && sourceIsThere ? to : from, "could not be moved");
}

void DiskFileSystem::Delete(std::string_view path) {
    const std::string diskPath = Located(path);
    if (IsFolderItself(diskPath)) throw FileError(EISDIR, diskPath, "could not be deleted");
    Unlink(diskPath);
}

void DiskFileSystem::CreateFolder(std::string_view path) {
    const std::string diskPath = Located(path);
    if (::mkdir(diskPath.c_str(), 0777) != 0)
        throw FileError(errno, diskPath, "could not be created");
}

void DiskFileSystem::CopyFolder(std::string_view source, std::string_view destination) {
    const std::string from = Located(source);
    const std::string to = Located(destination);
    DiskFolder::Open(from, true);
    if (::mkdir(to.c_str(), 0777) != 0 && errno != EEXIST)
        throw FileError(errno, to, "could not be created");
    CopyFolderContents(from, to, DurabilityOf(to));
}

void DiskFileSystem::DeleteFolder(std::string_view path) {
    const std::string diskPath = Located(path);
    struct stat status = {};
    if (::lstat(diskPath.c_str(), &status) != 0)
        throw FileError(ErrorNumber::kPathNotFound, diskPath, "could not be deleted",
                        "the folder does not exist");
    // A link to a folder goes alone; what it leads to stays.
    if (S_ISLNK(status.st_mode)) return Unlink(diskPath);
    if (!S_ISDIR(status.st_mode)) throw FileError(ENOTDIR, diskPath, "could not be deleted");
    std::error_code error;
    std::filesystem::remove_all(diskPath, error);
    if (error) throw FileError(error.value(), diskPath, "could not be deleted completely");
}

Durability DiskFileSystem::DurabilityOf(const std::string& diskPath) const {
    const bool scratch =
        !scratchFolder_.empty() && diskPath.starts_with(JoinDiskPath(scratchFolder_, ""));
    return scratch ? Durability::kUnflushed : Durability::kFlushed;
}

}  // namespace morpho
