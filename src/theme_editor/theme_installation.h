#pragma once

#include <optional>
#include <string>

#include "theme_editor/folder_backup.h"

namespace morpho {

class FileSystem;
struct InstalledTheme;
struct Platform;

// Installs a theme in a folder of themes, or replaces it there, and takes that back when it ends
// without having been told to keep it. What a program that dies meanwhile leaves of the theme is
// whole files, and its description, which makes it a theme, is the last to come.
class ThemeInstallation {
  public:
    // Throws RunTimeError when what is installed as `name` cannot be read.
    ThemeInstallation(const Platform& platform, const std::string& themesFolder,
                      const std::string& name);
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

// Whether the folder of this name is what an installation that never ended left behind. It is no
// theme yet; the next one of that name completes it.
bool IsHalfInstalled(const FileSystem& files, const std::string& themesFolder,
                     const std::string& name);

}  // namespace morpho
