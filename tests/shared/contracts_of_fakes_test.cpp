#include "support/fake_file_system.h"
#include "support/file_system_contract.h"

namespace morpho::test {

struct FakeFileSystemHost {
    FakeFileSystem files;
    FakeFileSystemHost() { files.PutFolder(Folder()); }
    FileSystem& Subject() { return files; }
    std::string Folder() { return "C:\\Work"; }
};
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, FileSystemContract, FakeFileSystemHost);

}  // namespace morpho::test
