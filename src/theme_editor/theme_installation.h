#pragma once

#include <optional>
#include <string>

#include "theme_editor/folder_backup.h"

namespace morpho {

class FileSystem;
struct InstalledTheme;
struct Platform;

// Installs a theme in a folder of themes, or replaces it there. Unless Keep was called, its end
// restores what was there before. If the program is killed meanwhile, every file of the theme is
// whole, and a new theme has no description yet: without one a folder is no theme.
class ThemeInstallation {
  public:
    // `copies` is a folder for copies of the theme that is replaced, without a trailing "\". Throws
    // RunTimeError when what is installed as `name` cannot be read.
    ThemeInstallation(const Platform& platform, const std::string& themesFolder,
                      const std::string& name, const std::string& copies);
    ~ThemeInstallation();
    ThemeInstallation(const ThemeInstallation&) = delete;
    ThemeInstallation& operator=(const ThemeInstallation&) = delete;

    // Writes the theme's description, and the package of the files in `workFolder`, made after
    // those of `source`. Throws RunTimeError when it fails.
    void Install(const InstalledTheme& source, const std::string& title,
                 const std::string& workFolder);
    void Keep() { backup_->KeepChanges(); }

  private:
    const Platform& platform_;
    const std::string themesFolder_;
    const std::string name_;
    std::optional<FolderBackup> backup_;
};

// Whether the folder of this name is left from an installation that was interrupted. It is no
// theme; installing a theme of that name completes it.
bool IsHalfInstalled(const FileSystem& files, const std::string& themesFolder,
                     const std::string& name);

}  // namespace morpho
