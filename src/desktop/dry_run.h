#pragma once

#include <filesystem>
#include <functional>
#include <set>
#include <string>

#include "desktop/desktop_system.h"

namespace morpho {

// A dry run of a save: it works on private copies of the files that the save reads and changes, in
// the web and in the user's data, and finds out what changed in them.
class DryRun {
  public:
    // Files that cannot be read are left out. `system` must outlive it. Throws RunTimeError when
    // the web cannot be opened or something cannot be copied.
    DryRun(DesktopSystem& system, const std::filesystem::path& web, const ProgramFolders& folders);

    std::filesystem::path Web() const;
    // The folders of the program for the dry run.
    ProgramFolders Folders() const;
    // What has been written or deleted since, a line for each file, by its real path.
    std::string WouldWrite() const;
    // A text of the dry run, with the paths of the real files instead of the copies'.
    std::string WithRealPlaces(std::string text) const;

  private:
    // Regular files by path below a folder.
    using Names = std::set<std::filesystem::path>;
    using IsWanted = std::function<bool(const std::filesystem::path& name)>;

    std::filesystem::path UserThemes() const;
    std::filesystem::path RealUserThemes() const;
    Names CopyFiles(const std::filesystem::path& source, const std::filesystem::path& destination,
                    const IsWanted& isWanted) const;
    static std::string Changes(const std::filesystem::path& realFolder,
                               const std::filesystem::path& copy, const Names& copied);

    const DesktopSystem& system_;
    std::filesystem::path realWeb_;
    ProgramFolders realFolders_;
    std::unique_ptr<WorkFolder> stage_;
    Names webFiles_;
    Names themeFiles_;
};

}  // namespace morpho
