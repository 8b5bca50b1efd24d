#include "linux/linux_disk.h"

#include <gtest/gtest.h>

#include "linux/disk_path.h"
#include "support/disk_contract.h"
#include "support/temporary_folder.h"

namespace morpho::test {
namespace {

class LinuxDiskHost {
  public:
    Disk& Subject() { return disk_; }
    std::string Path() const { return ToWindowsPath(folder_.Path().string()); }

  private:
    TemporaryFolder folder_;
    LinuxDisk disk_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, DiskContract, LinuxDiskHost);

}  // namespace
}  // namespace morpho::test
