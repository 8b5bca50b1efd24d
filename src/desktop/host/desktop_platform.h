#pragma once

#include <memory>

#include "desktop/disk/disk_file_system.h"
#include "desktop/disk/disk_profile_files.h"
#include "desktop/host/colorizer_adapter.h"
#include "desktop/system/desktop_environment.h"
#include "desktop/system/desktop_shell.h"
#include "desktop/system/private_folder.h"
#include "desktop/system/system_clock.h"
#include "desktop/system/user_folders.h"
#include "desktop/text/windows_1252.h"
#include "desktop/web/disk_application.h"
#include "platform/platform.h"
#include "platform/registry.h"

namespace morpho {

enum class DesktopUse {
    kWindows,  // settings are kept in the user's registry file
    kBatch,    // settings start fresh, without splash and quick reference, and are forgotten
};

// Everything that surrounds the editors on a Linux desktop, for the life of the program.
class DesktopPlatform {
  public:
    // The toolkit and the resources must outlive it. Throws RunTimeError when the private work
    // folder cannot be had.
    DesktopPlatform(DesktopUse use, const UserFolders& folders, Toolkit& toolkit,
                    const Resources& resources);

    Platform& Parts() { return platform_; }
    // The host; it has no web open yet.
    DiskApplication& FrontPage() { return frontPage_; }
    PrivateFolder& WorkFolder() { return workFolder_; }

  private:
    PrivateFolder workFolder_;
    std::unique_ptr<Registry> registry_;
    DiskFileSystem files_;
    Windows1252 codePage_;
    DiskProfileFiles profileFiles_;
    DesktopShell shell_;
    SystemClock clock_;
    DesktopEnvironment environment_;
    ColorizerAdapterFactory colorizers_;
    DiskApplication frontPage_;
    Platform platform_;
};

}  // namespace morpho
