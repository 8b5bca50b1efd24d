#pragma once

#include "desktop/desktop_system.h"
#include "windows_program/help_shell.h"
#include "windows_system/windows_clock.h"
#include "windows_system/windows_code_page.h"
#include "windows_system/windows_disk.h"
#include "windows_system/windows_picture_disk.h"

namespace morpho {

// Windows. The user's own themes are where FrontPage keeps them, settings where the add-ins keep
// theirs; the rest is in "Morpho" among the user's local data.
class WindowsDesktop : public DesktopSystem {
  public:
    ProgramFolders Folders() const override;
    std::filesystem::path FolderOfProgram() const override;
    // The C++ library does not know that "\\server\share" is absolute.
    std::filesystem::path AbsolutePath(const std::filesystem::path& path) const override;
    std::filesystem::path RealPath(const std::filesystem::path& path,
                                   std::error_code& error) const override;
    std::string PathInside(const std::filesystem::path& path) const override;
    std::optional<std::filesystem::path> PathOnDisk(std::string_view inside) const override {
        return pictures_.PathOnDisk(inside);
    }
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
    colorizer::FileHooks PictureHooks() const override { return pictures_.PictureHooks(); }
    RunTimeError FileError(const std::error_code& code, const std::filesystem::path& path,
                           std::string_view failure) const override {
        return pictures_.FileError(code, path, failure);
    }
    bool IsErrorOutputWatched() const override;

  private:
    WindowsCodePage codePage_;
    HelpShell shell_;
    WindowsClock clock_;
    WindowsDisk disk_;
    WindowsPictureDisk pictures_;
};

}  // namespace morpho
