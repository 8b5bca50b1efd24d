#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace morpho {

// What the stand-in host asks of the system's disk. Names and texts are UTF-8; a name is one step
// of a path, never "." or "..". What fails throws RunTimeError naming the file.

enum class EntryKind { kFile, kFolder, kLink, kOther };

struct FolderEntry {
    std::string name;  // as spelled on the disk
    EntryKind kind = EntryKind::kOther;
};

// Tells one folder of this machine from every other one that exists at the same time.
struct FolderId {
    std::uint64_t device = 0;
    std::uint64_t number = 0;

    bool operator==(const FolderId&) const = default;
};

// Whether what is written must outlive a power failure.
enum class Durability { kFlushed, kUnflushed };

// A regular file, open for reading.
class ReadableFile {
  public:
    virtual ~ReadableFile() = default;
    virtual std::uint64_t Size() const = 0;  // in bytes, when it was opened
    // At most `count` bytes from `offset` on; fewer only at the end of the file.
    virtual std::string Read(std::uint64_t offset, std::uint64_t count) const = 0;
};

// New contents of a file, under a temporary name in the same folder until Commit gives them the
// file's name. Without Commit the file stays as it was, and the temporary file goes.
class NewFile {
  public:
    virtual ~NewFile() = default;
    virtual void Write(std::string_view bytes) = 0;
    virtual void Commit() = 0;
};

// A lock on a folder, held until this object ends. The system ends it with its program.
class FolderLock {
  public:
    virtual ~FolderLock() = default;
};

// An open folder. Everything is reached from the open folder itself, never again by its path, and
// links are never followed: whatever another program does to names and links meanwhile, nothing
// outside this folder and those below it is read or written.
class Folder {
  public:
    virtual ~Folder() = default;

    // Where it was opened, as the system writes it: for messages.
    virtual std::string Path() const = 0;
    virtual std::string PathOf(std::string_view name) const = 0;
    virtual FolderId Id() const = 0;
    // The same folder once more, with a life of its own.
    virtual std::unique_ptr<Folder> OpenAgain() const = 0;

    // Without "." and "..", in order of the names.
    virtual std::vector<FolderEntry> Entries() const = 0;
    // The entry spelled so, else the first that differs in letter case only; nothing for none.
    virtual std::optional<FolderEntry> Find(std::string_view name) const = 0;
    virtual std::unique_ptr<Folder> Open(std::string_view name) const = 0;
    virtual std::unique_ptr<ReadableFile> OpenFile(std::string_view name) const = 0;

    // Nothing of this name may be there.
    virtual std::unique_ptr<Folder> Create(std::string_view name) = 0;
    // Replaces the file, or creates it. An existing file keeps its mode, and its owner and group as
    // far as the user may give them; a read-only file is refused; a link is itself replaced.
    virtual std::unique_ptr<NewFile> Replace(std::string_view name, Durability durability) = 0;
    // Writes a file of a free name, unflushed, with mode and owner of the file `model`, which it is
    // to replace later. A read-only `model` is refused; it may be missing.
    virtual std::unique_ptr<NewFile> AddLike(std::string_view name, std::string_view model) = 0;
    // Renames within the folder. A file replaces a file; a folder takes a free name only.
    virtual void Rename(std::string_view from, std::string_view to) = 0;
    // Gives the file a second name in `target`, where the disk can do that, else copies it.
    virtual void Link(std::string_view name, Folder& target, std::string_view newName) = 0;
    // A file, or a link itself.
    virtual void Remove(std::string_view name) = 0;
    // A folder with all contents; links in it are removed, not followed.
    virtual void RemoveFolder(std::string_view name) = 0;
    // Hands these files and the folder's own entries over to the disk.
    virtual void Flush(const std::vector<std::string>& names) = 0;

    // Locks the file of this name, which is created and goes with the lock. Null while another
    // program holds it; `holder` is then what that program says of itself. Throws where the file
    // cannot be created. A disk without locks excludes nobody.
    virtual std::unique_ptr<FolderLock> TryLock(std::string_view name, std::string& holder) = 0;
};

// A name for a temporary file or folder of this program, another one at each call.
std::string NewTemporaryName(std::uint64_t program);
// Whether a program of ours gives such names to temporary files.
bool IsTemporaryName(std::string_view name);
// The number of the program that gave the name; nothing for another name.
std::optional<std::uint64_t> ProgramOfTemporaryName(std::string_view name);

class Disk {
  public:
    virtual ~Disk() = default;

    // Opens a folder by Windows path; links on the way are followed.
    virtual std::unique_ptr<Folder> Open(std::string_view path) = 0;
    // The same, creating the folder and those above it where they are missing.
    virtual std::unique_ptr<Folder> OpenOrCreate(std::string_view path) = 0;

    // What tells this machine from others that share a disk with it.
    virtual std::string Machine() const = 0;
    virtual std::uint64_t Program() const = 0;  // the running program's number
    // Whether a program of this number runs on this machine.
    virtual bool IsRunning(std::uint64_t program) const = 0;
};

}  // namespace morpho
