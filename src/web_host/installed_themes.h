#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "web_host/packed_theme.h"

namespace morpho {

// The themes of one web as installed for all users: for each a folder with its description and its
// package. They can be made again from the web at any time. Everything throws RunTimeError.
class InstalledThemes {
  public:
    // `path` is a Windows path; the folder is created when it is missing.
    InstalledThemes(Disk& disk, const std::string& path) : folder_(disk.OpenOrCreate(path)) {}

    // Installs the theme of this name from its folder, which has these files.
    void Install(const std::string& name, const Folder& theme, const std::string& descriptionName,
                 const std::vector<PackedFile>& files);
    // Keeps the name of a folder that is no theme from being given to one.
    void Reserve(const std::string& name);
    // Removes what is installed and was not among those of this object.
    void RemoveOthers();

  private:
    std::unique_ptr<Folder> Entered(const std::string& name);

    std::unique_ptr<Folder> folder_;
    std::set<std::string> names_;
};

}  // namespace morpho
