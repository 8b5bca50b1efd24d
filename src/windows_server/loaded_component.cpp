#include "windows_server/loaded_component.h"

#include "windows_toolkit/windows_toolkit.h"

namespace morpho {

std::shared_ptr<LoadedComponent> LoadedComponent::Get() {
    // Only the host's user-interface thread gets here.
    static std::weak_ptr<LoadedComponent> loaded;
    auto component = loaded.lock();
    if (!component) loaded = component = std::make_shared<LoadedComponent>();
    return component;
}

LoadedComponent::LoadedComponent()
    : environment_(
          {"Morpho", MORPHO_VERSION_MAJOR, MORPHO_VERSION_MINOR, MORPHO_VERSION_REVISION, ""}),
      toolkit_(std::make_unique<WindowsToolkit>(::GetActiveWindow)),
      platform_{registry_,  files_,      codePage_, shell_,      clock_,    environment_,
                resources_, colorizers_, toolkit_,  automation_, clipboard_} {}

}  // namespace morpho
