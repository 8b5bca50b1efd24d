#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "desktop/system/private_folder.h"
#include "desktop/system/user_folders.h"

namespace morpho {

// A rehearsal: a private copy of a web and of the user's data, on which a batch may do its work, so
// that what it would write is what it wrote there.
class DryRun {
  public:
    // Throws std::filesystem::filesystem_error when something cannot be copied.
    DryRun(const std::filesystem::path& web, const UserFolders& folders);

    std::filesystem::path Web() const;
    // The folders of the program for the rehearsal.
    UserFolders Folders() const;
    // What has been written or deleted since, one line for a file, by its real place.
    std::string WouldWrite() const;

  private:
    // Files by path below a folder, with their bytes.
    using Tree = std::map<std::string, std::string>;
    std::filesystem::path UserThemes() const;
    static Tree ReadTree(const std::filesystem::path& folder);
    static std::string Changes(const Tree& before, const Tree& after,
                               const std::filesystem::path& realFolder);

    std::filesystem::path realWeb_;
    UserFolders realFolders_;
    PrivateFolder stage_;
    Tree webBefore_;
    Tree themesBefore_;
};

}  // namespace morpho
