#pragma once

#include <memory>

#include "formats/windows_1252_code_page.h"
#include "linux/desktop_environment.h"
#include "linux/desktop_shell.h"
#include "linux/disk_file_system.h"
#include "linux/linux_disk.h"
#include "linux/private_folder.h"
#include "linux/system_clock.h"
#include "linux/user_folders.h"
#include "platform/platform.h"
#include "platform/registry.h"
#include "program/colorizer_adapter.h"
#include "shared/memory_registry.h"
#include "web_host/disk_application.h"
#include "web_host/disk_explorer.h"
#include "web_host/machine_description.h"

namespace morpho {

enum class DesktopUse {
    kWindows,  // settings are kept in the user's registry file
    kBatch,    // settings start fresh, without splash and quick reference, and are forgotten
};

// Everything that surrounds the editors on a Linux desktop, for the life of the program.
class DesktopPlatform {
  public:
    // Toolkit, resources and clipboard must outlive it; `hostVersion` is the release that the host
    // plays. Throws RunTimeError when the private work
    // folder cannot be created.
    DesktopPlatform(DesktopUse use, const UserFolders& folders, Toolkit& toolkit,
                    const Resources& resources, Clipboard& clipboard,
                    const std::string& hostVersion = "6.0");

    // Removes the record of the host's last save at the very end: should the program be killed
    // before, its next start can tell that the save is complete.
    ~DesktopPlatform() { workFolder_.Remove(); }
    DesktopPlatform(const DesktopPlatform&) = delete;
    DesktopPlatform& operator=(const DesktopPlatform&) = delete;

    Platform& Parts() { return platform_; }
    // Opens a web to look at; `folder` is a path of the disk. See DiskApplication::Open.
    void OpenForReading(const std::string& folder,
                        const std::optional<std::string>& onlyTheme = {});
    // Opens a web whose themes can be saved: its themes are installed for all users, in a folder of
    // the program's data that belongs to this web, and the user has a folder for own themes. The
    // web opens also when a theme cannot be installed; WebSession::Skipped tells which.
    void OpenForSaving(const std::string& folder, const std::optional<std::string>& onlyTheme = {});
    // The host; it has no web open yet.
    DiskApplication& FrontPage() { return *frontPage_; }
    // The same for Component::application, which must not outlive this object.
    std::shared_ptr<Application> SharedFrontPage() { return frontPage_; }
    PrivateFolder& WorkFolder() { return workFolder_; }
    DiskAutomation& Automation() { return automation_; }

  private:
    MachineFolders Machine() const;

    PrivateFolder workFolder_;
    UserFolders folders_;
    std::string hostVersion_;
    std::unique_ptr<MemoryRegistry> registry_;
    DiskFileSystem files_;
    Windows1252CodePage codePage_;
    DesktopShell shell_;
    SystemClock clock_;
    DesktopEnvironment environment_;
    ColorizerAdapterFactory colorizers_;
    LinuxDisk disk_;
    std::shared_ptr<DiskApplication> frontPage_;
    DiskAutomation automation_{*frontPage_};
    Platform platform_;
};

}  // namespace morpho
