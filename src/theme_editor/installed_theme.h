#pragma once

#include <string>

#include "shared/component.h"

namespace morpho {

// The folder of the installed themes, those for all users or the user's own, without a trailing
// "\"; empty when it cannot be found.
std::string GetThemesFolder(const Program& program, bool shared);

// A theme as installed: the files "<name>.inf" and "<name>.elm" in one folder.
struct InstalledTheme {
    std::string folder;  // without a trailing "\"
    std::string name;

    std::string Inf() const { return folder + '\\' + name + ".inf"; }
    std::string Elm() const { return folder + '\\' + name + ".elm"; }
};

}  // namespace morpho
