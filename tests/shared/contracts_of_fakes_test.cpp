#include "support/fake_file_system.h"
#include "support/fake_registry.h"
#include "support/file_system_contract.h"
#include "support/registry_contract.h"

namespace morpho::test {

struct FakeFileSystemHost {
    FakeFileSystem files;
    FakeFileSystemHost() { files.PutFolder(Folder()); }
    FileSystem& Subject() { return files; }
    std::string Folder() { return "C:\\Work"; }
};
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, FileSystemContract, FakeFileSystemHost);

struct FakeRegistryHost {
    FakeRegistry registry;
    Registry& Subject() { return registry; }
};
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, RegistryContract, FakeRegistryHost);

}  // namespace morpho::test
