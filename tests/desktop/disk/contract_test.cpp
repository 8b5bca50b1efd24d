#include "desktop/disk/disk_file_system.h"
#include "desktop/disk/disk_path.h"
#include "desktop/disk/disk_profile_files.h"
#include "desktop/temporary_folder.h"
#include "desktop/text/windows_1252.h"
#include "support/file_system_contract.h"
#include "support/profile_files_contract.h"

namespace morpho::test {
namespace {

class DiskHost {
  public:
    FileSystem& Subject() { return files_; }
    std::string Folder() { return ToWindowsPath(folder_.Path().string()); }

  private:
    TemporaryFolder folder_;
    DiskFileSystem files_;
};

class ProfileHost {
  public:
    ProfileFiles& Subject() { return profiles_; }
    std::string File() { return ToWindowsPath(folder_ / "a.inf"); }
    void Put(const std::string& bytes) { folder_.Write("a.inf", bytes); }
    std::string Bytes() { return folder_.Read("a.inf"); }

  private:
    TemporaryFolder folder_;
    DiskFileSystem files_;
    Windows1252 codePage_;
    DiskProfileFiles profiles_{files_, codePage_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Disk, FileSystemContract, DiskHost);
INSTANTIATE_TYPED_TEST_SUITE_P(Disk, ProfileFilesContract, ProfileHost);

}  // namespace
}  // namespace morpho::test
