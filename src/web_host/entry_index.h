#pragma once

#include <map>
#include <optional>
#include <string>

#include "web_host/disk.h"

namespace morpho {

// The entries of a folder as they are when it is listed here, for many look-ups: Folder::Find lists
// the folder again for each name that is not there.
class EntryIndex {
  public:
    // `folder` must outlive it.
    explicit EntryIndex(const Folder& folder);

    const Folder& Of() const { return folder_; }
    // The entry spelled so, else the first that differs in letter case only; nothing for none.
    std::optional<FolderEntry> Find(const std::string& name) const;
    // The same for a name that a file is to get. Throws RunTimeError where something stands there
    // that is no file.
    std::optional<FolderEntry> FindFile(const std::string& name) const;

  private:
    const Folder& folder_;
    std::multimap<std::string, FolderEntry> byFoldedName_;  // equal ones in order of the names
};

}  // namespace morpho
