#include "theme_editor/installed_theme.h"

#include "frontpage/environment_discovery.h"
#include "platform/front_page.h"

namespace morpho {

namespace {

constexpr std::string_view kLanguage = "1033";

}  // namespace

std::string GetThemesFolder(const Program& program, bool shared) {
    return GetFrontPageFolder(program.platform, program.component.application->Version(),
                              FrontPageFolder::kThemes, kLanguage, shared);
}

}  // namespace morpho
