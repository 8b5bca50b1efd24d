#pragma once

#include <set>
#include <string>
#include <vector>

#include "formats/theme_package.h"

namespace morpho {

// The themes of one web as installed for all users: for each a folder with "<name>.inf" and the
// packed "<name>.elm". They can be made again from the web at any time.
class InstalledThemes {
  public:
    using File = ThemePackage::Member;

    // `folder` is a path of the disk and need not exist.
    explicit InstalledThemes(std::string folder) : folder_(std::move(folder)) {}

    // Installs the theme with these files; what is there already is not written again. False for
    // files without the theme's description. A file whose name no package can hold is left out.
    // Throws RunTimeError.
    bool Install(const std::string& diskName, const std::vector<File>& files);
    // Keeps the name of a folder that is no theme from being taken by one. Throws RunTimeError.
    void Reserve(const std::string& diskName);
    // Removes what is installed and was not among those of this object; how many. Throws
    // RunTimeError.
    int RemoveOthers();

  private:
    std::string folder_;
    std::set<std::string> names_;
};

}  // namespace morpho
