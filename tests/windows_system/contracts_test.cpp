#include "support/disk_contract.h"
#include "support/file_system_contract.h"
#include "support/registry_contract.h"
#include "support/temporary_folder.h"
#include "windows_system/win32.h"
#include "windows_system/windows_disk.h"
#include "windows_system/windows_file_system.h"
#include "windows_system/windows_registry.h"

namespace morpho::test {
namespace {

class FileSystemHost {
  public:
    FileSystem& Subject() { return files_; }
    std::string Folder() { return folder_.Path().string(); }

  private:
    TemporaryFolder folder_;
    WindowsFileSystem files_;
};

class DiskHost {
  public:
    Disk& Subject() { return disk_; }
    std::string Path() const { return folder_.Path().string(); }

  private:
    TemporaryFolder folder_;
    WindowsDisk disk_;
};

class RegistryHost {
  public:
    RegistryHost() { Remove(); }
    ~RegistryHost() { Remove(); }
    Registry& Subject() { return registry_; }

  private:
    static void Remove() { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Morpho Test"); }
    WindowsRegistry registry_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Windows, FileSystemContract, FileSystemHost);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, DiskContract, DiskHost);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, RegistryContract, RegistryHost);

}  // namespace
}  // namespace morpho::test
