#pragma once

#include <memory>

#include "colorizer_server/com_colorizer.h"
#include "platform/platform.h"
#include "resources/embedded_resources.h"
#include "shared/component.h"
#include "windows_com/com_object.h"
#include "windows_host/com_automation.h"
#include "windows_server/server_toolkit.h"
#include "windows_system/windows_clipboard.h"
#include "windows_system/windows_clock.h"
#include "windows_system/windows_code_page.h"
#include "windows_system/windows_environment.h"
#include "windows_system/windows_file_system.h"
#include "windows_system/windows_registry.h"
#include "windows_system/windows_shell.h"

namespace morpho {

// What both add-ins and their windows share for as long as one of them is alive. The module is not
// unloaded before.
class LoadedComponent {
  public:
    // The one of this module; it is made for the first who asks, and belongs to those who have it.
    static std::shared_ptr<LoadedComponent> Get();

    LoadedComponent();
    LoadedComponent(const LoadedComponent&) = delete;
    LoadedComponent& operator=(const LoadedComponent&) = delete;

    morpho::Program Program() { return {platform_, component_}; }

  private:
    LiveObject live_;
    WindowsRegistry registry_;
    WindowsFileSystem files_;
    WindowsCodePage codePage_;
    WindowsShell shell_;
    WindowsClock clock_;
    WindowsEnvironment environment_;
    EmbeddedResources resources_;
    ComColorizerFactory colorizers_;
    ServerToolkit toolkit_;
    ComAutomation automation_;
    WindowsClipboard clipboard_;
    Platform platform_;
    Component component_;
};

}  // namespace morpho
