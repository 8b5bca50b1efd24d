#pragma once

#include <optional>
#include <string>

#include "support/temporary_folder.h"
#include "web_host/machine_description.h"
#include "windows/front_page/changed_variable.h"
#include "windows/front_page/front_page.h"
#include "windows/front_page/private_registry.h"
#include "windows_system/windows_disk.h"
#include "windows_system/windows_file_system.h"

namespace morpho::test {

// A computer on which one release of FrontPage runs, with a copy of the sample web open. Everything
// that it reads and writes is in a temporary folder, the registry is its own, and COM stands.
class HostWorld {
  public:
    explicit HostWorld(const std::string& version = "6.0", const Clipboard* clipboard = nullptr);
    ~HostWorld();
    HostWorld(const HostWorld&) = delete;
    HostWorld& operator=(const HostWorld&) = delete;

    // What the web and the user's themes hold now.
    Tree Web() const { return folder_.Below("web"); }
    Tree UserThemes() const { return folder_.Below("AppData/Microsoft/Themes"); }

    // The person works on this page of the web and has selected this picture.
    void Select(const WebPath& page, int picture);
    DiskApplication& Application() { return application_; }
    FrontPage& Host() { return host_; }
    const TemporaryFolder& Folder() const { return folder_; }

  private:
    MachineFolders Machine() const;

    TemporaryFolder folder_;
    ChangedVariable tmp_{L"TMP", folder_.At("Temp").c_str()};
    ChangedVariable temp_{L"TEMP", folder_.At("Temp").c_str()};
    WindowsDisk disk_;
    WindowsFileSystem files_;
    DiskApplication application_;
    FrontPage host_{application_};
    PrivateRegistry registry_;
    std::optional<ExplorerClass> explorer_;
};

}  // namespace morpho::test
