#pragma once

#include <string>
#include <vector>

#include "desktop/disk/disk_profile_files.h"

namespace morpho::test {

// The desktop's profile files, which work on any file system; it remembers what was flushed.
class FakeProfileFiles : public DiskProfileFiles {
  public:
    using DiskProfileFiles::DiskProfileFiles;
    void Flush(std::string_view file) override {
        flushed_.emplace_back(file);
        DiskProfileFiles::Flush(file);
    }
    const std::vector<std::string>& Flushed() const { return flushed_; }

  private:
    std::vector<std::string> flushed_;
};

}  // namespace morpho::test
