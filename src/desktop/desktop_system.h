#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

#include "colorizer_adapter/picture_disk.h"
#include "platform/environment.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "shared/memory_registry.h"
#include "web_host/disk.h"

namespace morpho {

// Folders that the program works with. They need not exist yet.
struct ProgramFolders {
    std::filesystem::path desktop;  // the user's desktop
    std::filesystem::path appData;  // settings of all programs; the user's own themes are in it
    std::filesystem::path data;     // what this program keeps
    std::filesystem::path cache;    // where it makes its work folders
};

// A folder that belongs to this run of the program alone. It is removed with the object.
class WorkFolder {
  public:
    virtual ~WorkFolder() = default;

    virtual std::filesystem::path Path() const = 0;
    // Folders in it, which exist: for the program's work files, and for what the host unpacks.
    std::filesystem::path Temporary() const { return Path() / "temp"; }
    std::filesystem::path Cache() const { return Path() / "cache"; }
};

// What the desktop program needs of the system that it runs on. What fails throws RunTimeError.
class DesktopSystem : public PictureDisk {
  public:
    // The folders of the user who runs the program.
    virtual ProgramFolders Folders() const = 0;
    virtual std::filesystem::path FolderOfProgram() const = 0;

    // Where a path that a person gave leads: absolute, without "." and "..", doubled or trailing
    // separators. What it names need not exist.
    virtual std::filesystem::path AbsolutePath(const std::filesystem::path& path) const = 0;
    // The absolute path, without links, of a file or folder that exists. `error` says why there is
    // none.
    virtual std::filesystem::path RealPath(const std::filesystem::path& path,
                                           std::error_code& error) const = 0;
    // The Windows path, UTF-8, by which the editors call an absolute path of the disk.
    virtual std::string PathInside(const std::filesystem::path& path) const = 0;

    // Makes a work folder in `root`, and removes those of programs that were killed.
    virtual std::unique_ptr<WorkFolder> MakeWorkFolder(const std::filesystem::path& root) const = 0;

    // The parts of a Platform. What is written below `scratch` need not survive a power failure.
    virtual std::unique_ptr<FileSystem> MakeFiles(const std::filesystem::path& scratch) const = 0;
    // The keys of `machine`, and the user's settings, which are kept.
    virtual std::unique_ptr<MemoryRegistry> MakeRegistry(const ProgramFolders& folders,
                                                         const RegistryData& machine) const = 0;
    virtual std::unique_ptr<Environment> MakeEnvironment(
        const ComponentVersion& version, const std::filesystem::path& temporary) const = 0;
    virtual CodePage& GetCodePage() = 0;
    virtual Shell& GetShell() = 0;
    virtual Clock& GetClock() = 0;

    virtual Disk& GetDisk() = 0;
    // Whether a person looks at standard error.
    virtual bool IsErrorOutputWatched() const = 0;
};

}  // namespace morpho
