#include "program/linux_system.h"

#include <unistd.h>

#include "linux/desktop_environment.h"
#include "linux/disk_file_system.h"
#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "linux/private_folder.h"
#include "linux/registry_file.h"
#include "linux/user_folders.h"

namespace morpho {

namespace {

namespace fs = std::filesystem;

class LinuxWorkFolder : public WorkFolder {
  public:
    explicit LinuxWorkFolder(const std::string& root) : folder_(root) {}
    fs::path Path() const override { return folder_.Path(); }

  private:
    PrivateFolder folder_;
};

// Beside an installed program, and in the sources of one that was only built.
std::vector<std::string> HelpPages() {
    const std::string program = ProgramFolder();
    return {program + "/../share/doc/morpho/help/index.html",
            program + "/../../../docs/help/index.html"};
}

}  // namespace

LinuxSystem::LinuxSystem() : shell_(HelpPages(), StartDetached) {}

ProgramFolders LinuxSystem::Folders() const {
    const UserFolders found = FindUserFolders(EnvironmentVariable);
    const fs::path home = found.home;
    const fs::path data = found.data;
    std::error_code ignored;
    return {.desktop = fs::is_directory(home / "Desktop", ignored) ? home / "Desktop" : home,
            .appData = data / "AppData",
            .data = data,
            .cache = found.cache};
}

fs::path LinuxSystem::FolderOfProgram() const {
    return ProgramFolder();
}

fs::path LinuxSystem::AbsolutePath(const fs::path& path) const {
    return fs::absolute(path / ".").lexically_normal().parent_path();
}

fs::path LinuxSystem::RealPath(const fs::path& path, std::error_code& error) const {
    return fs::canonical(path, error);
}

std::string LinuxSystem::PathInside(const fs::path& path) const {
    return ToWindowsPath(path.string());
}

std::optional<fs::path> LinuxSystem::PathOnDisk(std::string_view inside) const {
    return FindOnDisk(inside);
}

std::unique_ptr<WorkFolder> LinuxSystem::MakeWorkFolder(const fs::path& root) const {
    return std::make_unique<LinuxWorkFolder>(root.string());
}

std::unique_ptr<FileSystem> LinuxSystem::MakeFiles(const fs::path& scratch) const {
    return std::make_unique<DiskFileSystem>(scratch.string());
}

std::unique_ptr<MemoryRegistry> LinuxSystem::MakeRegistry(const ProgramFolders& folders,
                                                          const RegistryData& machine) const {
    return std::make_unique<RegistryFile>((folders.data / "registry.reg").string(), machine);
}

std::unique_ptr<Environment> LinuxSystem::MakeEnvironment(const ComponentVersion& version,
                                                          const fs::path& temporary) const {
    return std::make_unique<DesktopEnvironment>(version, temporary.string());
}

RunTimeError LinuxSystem::FileError(const std::error_code& code, const fs::path& path,
                                    std::string_view failure) const {
    return morpho::FileError(code.value(), path.string(), failure);
}

bool LinuxSystem::IsErrorOutputWatched() const {
    return ::isatty(STDERR_FILENO) == 1;
}

}  // namespace morpho
