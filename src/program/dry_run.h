#pragma once

#include <filesystem>
#include <functional>
#include <set>
#include <string>

#include "linux/private_folder.h"
#include "linux/user_folders.h"

namespace morpho {

// A rehearsal of a save on private copies of the files that it reads and changes, in the web and
// in the user's data. What the save changes in the copies is what it would change.
class DryRun {
  public:
    // Files that cannot be read are left out. Throws RunTimeError when the web cannot be opened or
    // something cannot be copied.
    DryRun(const std::filesystem::path& web, const UserFolders& folders);

    std::filesystem::path Web() const;
    // The folders of the program for the rehearsal.
    UserFolders Folders() const;
    // What has been written or deleted since, one line for a file, by its real place.
    std::string WouldWrite() const;
    // A text of the rehearsal, with the real places in it instead of the copies'.
    std::string WithRealPlaces(std::string text) const;

  private:
    // Regular files by path below a folder.
    using Names = std::set<std::filesystem::path>;
    using IsWanted = std::function<bool(const std::filesystem::path& name)>;

    std::filesystem::path UserThemes() const;
    std::filesystem::path RealUserThemes() const;
    static Names CopyFiles(const std::filesystem::path& source,
                           const std::filesystem::path& destination, const IsWanted& isWanted);
    static std::string Changes(const std::filesystem::path& realFolder,
                               const std::filesystem::path& copy, const Names& copied);

    std::filesystem::path realWeb_;
    UserFolders realFolders_;
    PrivateFolder stage_;
    Names webFiles_;
    Names themeFiles_;
};

}  // namespace morpho
