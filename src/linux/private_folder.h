#pragma once

#include <string>

#include "linux/descriptor.h"

namespace morpho {

// A folder that belongs to the user and to this run of the program alone, for work files. A lock
// holds it as long as the program runs, so that the next start can find and remove the folders of
// programs that were killed.
class PrivateFolder {
  public:
    // Creates it in `root` (a path of the disk, created too), which must be a folder of the user's
    // own and no link; else, or when it cannot be created, throws RunTimeError.
    explicit PrivateFolder(const std::string& root);
    // Removes it with all contents.
    ~PrivateFolder();
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;

    // Paths of the disk.
    const std::string& Path() const { return path_; }
    std::string Temporary() const { return path_ + "/temp"; }  // for the program's work files
    std::string Cache() const { return path_ + "/cache"; }     // for what the host unpacks

    // Does the work of the destructor, for a program that ends without one. Not safe in a signal
    // handler.
    void Remove() noexcept;

  private:
    void Create(const Descriptor& root, const std::string& rootPath);

    std::string path_;
    Descriptor held_;
};

}  // namespace morpho
