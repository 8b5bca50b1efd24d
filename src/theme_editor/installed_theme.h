#pragma once

#include <string>

#include "shared/component.h"

namespace morpho {

class FileSystem;

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

// Installs a theme as `themesFolder`\`name`, or replaces it there: its description, and the package
// of the files in `workFolder`, made after those of `source`. Throws RunTimeError when it fails;
// what is there of the theme then is whole files, and its description, which makes it a theme, is
// the last to come.
void InstallTheme(const Platform& platform, const InstalledTheme& source,
                  const std::string& themesFolder, const std::string& name,
                  const std::string& title, const std::string& workFolder);

// Whether the folder of this name is what an InstallTheme that never ended left behind. It is no
// theme yet; the next InstallTheme of that name completes it.
bool IsHalfInstalled(const FileSystem& files, const std::string& themesFolder,
                     const std::string& name);

}  // namespace morpho
