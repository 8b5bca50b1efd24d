#pragma once

#include <optional>
#include <string>
#include <vector>

#include "linux/descriptor.h"

namespace morpho {

enum class DiskKind { kFile, kFolder, kLink, kOther };

struct DiskEntry {
    std::string name;  // bytes, as on the disk
    DiskKind kind = DiskKind::kOther;
};

// An open folder of the disk, from which nothing leads outside: links in it are not followed.
// Failures throw RunTimeError naming the file.
class DiskFolder {
  public:
    // Follows links on the way to the folder; the last one only when asked to.
    static DiskFolder Open(const std::string& diskPath, bool followLastLink);

    const std::string& Path() const { return path_; }
    const Descriptor& Handle() const { return folder_; }
    int Number() const { return folder_.Number(); }

    // Without "." and "..", in byte order of the names.
    std::vector<DiskEntry> Entries() const;
    // The entry of this name: the one spelled so, else the first that differs in letter case only.
    // Nothing when there is none.
    std::optional<DiskEntry> Find(const std::string& name) const;
    DiskFolder Subfolder(const std::string& name) const;
    // The same folder with a descriptor of its own.
    DiskFolder Again() const;
    // A regular file of this folder, for reading; anything else is refused.
    Descriptor OpenFile(const std::string& name) const;
    std::string PathOf(const std::string& name) const;

  private:
    DiskFolder(std::string path, Descriptor folder);

    std::string path_;
    Descriptor folder_;
};

}  // namespace morpho
