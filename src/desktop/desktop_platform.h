#pragma once

#include <memory>

#include "colorizer_adapter/colorizer_adapter.h"
#include "desktop/desktop_system.h"
#include "platform/platform.h"
#include "platform/registry.h"
#include "shared/memory_registry.h"
#include "web_host/disk_application.h"
#include "web_host/disk_explorer.h"
#include "web_host/machine_description.h"

namespace morpho {

enum class DesktopUse {
    kWindows,  // settings are kept
    kBatch,    // settings start fresh, without splash and quick reference, and are forgotten
};

// Everything that surrounds the editors in the desktop program, for the life of the program.
class DesktopPlatform {
  public:
    // System, toolkit, resources and clipboard must outlive it; `hostVersion` is the release that
    // the host plays. Throws RunTimeError when the work folder cannot be created.
    DesktopPlatform(DesktopUse use, DesktopSystem& system, const ProgramFolders& folders,
                    Toolkit& toolkit, const Resources& resources, Clipboard& clipboard,
                    const std::string& hostVersion = "6.0");

    // Removes the record of the host's last save at the very end: should the program be killed
    // before, its next start can tell that the save is complete.
    ~DesktopPlatform() { workFolder_.reset(); }
    DesktopPlatform(const DesktopPlatform&) = delete;
    DesktopPlatform& operator=(const DesktopPlatform&) = delete;

    Platform& Parts() { return platform_; }
    // Opens a web to look at. See DiskApplication::Open.
    void OpenForReading(const std::filesystem::path& folder,
                        const std::optional<std::string>& onlyTheme = {});
    // Opens a web whose themes can be saved: its themes are installed for all users, in a folder of
    // the program's data that belongs to this web, and the user has a folder for own themes. The
    // web opens also when a theme cannot be installed; WebSession::Skipped tells which.
    void OpenForSaving(const std::filesystem::path& folder,
                       const std::optional<std::string>& onlyTheme = {});
    // The host; it has no web open yet.
    DiskApplication& FrontPage() { return *frontPage_; }
    // The same for Component::application, which must not outlive this object.
    std::shared_ptr<Application> SharedFrontPage() { return frontPage_; }
    // Where the host unpacks themes.
    std::filesystem::path Cache() const { return workFolder_->Cache(); }
    DiskAutomation& Automation() { return automation_; }

  private:
    MachineFolders Machine() const;
    // What is kept for the web in this folder.
    std::filesystem::path DataOf(const std::filesystem::path& web) const;

    DesktopSystem& system_;
    std::unique_ptr<WorkFolder> workFolder_;
    ProgramFolders folders_;
    std::string hostVersion_;
    std::unique_ptr<MemoryRegistry> registry_;
    std::unique_ptr<FileSystem> files_;
    std::unique_ptr<Environment> environment_;
    ColorizerAdapterFactory colorizers_;
    std::shared_ptr<DiskApplication> frontPage_;
    DiskAutomation automation_{*frontPage_};
    Platform platform_;
};

}  // namespace morpho
