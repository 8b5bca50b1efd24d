#pragma once

#include "desktop/desktop_system.h"
#include "formats/windows_1252_code_page.h"
#include "linux/desktop_shell.h"
#include "linux/linux_disk.h"
#include "linux/replace_work_file.h"
#include "linux/system_clock.h"

namespace morpho {

// A Linux desktop; its user's folders are those of the XDG base directories.
class LinuxSystem : public DesktopSystem {
  public:
    LinuxSystem();

    ProgramFolders Folders() const override;
    std::filesystem::path FolderOfProgram() const override;
    std::filesystem::path AbsolutePath(const std::filesystem::path& path) const override;
    std::filesystem::path RealPath(const std::filesystem::path& path,
                                   std::error_code& error) const override;
    std::string PathInside(const std::filesystem::path& path) const override;
    std::optional<std::filesystem::path> PathOnDisk(std::string_view inside) const override;
    std::unique_ptr<WorkFolder> MakeWorkFolder(const std::filesystem::path& root) const override;
    std::unique_ptr<FileSystem> MakeFiles(const std::filesystem::path& scratch) const override;
    std::unique_ptr<MemoryRegistry> MakeRegistry(const ProgramFolders& folders,
                                                 const RegistryData& machine) const override;
    std::unique_ptr<Environment> MakeEnvironment(
        const ComponentVersion& version, const std::filesystem::path& temporary) const override;
    CodePage& GetCodePage() override { return codePage_; }
    Shell& GetShell() override { return shell_; }
    Clock& GetClock() override { return clock_; }
    Disk& GetDisk() override { return disk_; }
    // The library's file times do well enough. All that it writes are work files: the editors copy
    // them to where they belong.
    colorizer::FileHooks PictureHooks() const override {
        return {.replace = ReplaceWorkFile, .version = {}};
    }
    RunTimeError FileError(const std::error_code& code, const std::filesystem::path& path,
                           std::string_view failure) const override;
    bool IsErrorOutputWatched() const override;

  private:
    Windows1252CodePage codePage_;
    DesktopShell shell_;
    SystemClock clock_;
    LinuxDisk disk_;
};

}  // namespace morpho
