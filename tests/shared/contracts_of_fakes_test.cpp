#include "support/fake_code_page.h"
#include "support/fake_file_system.h"
#include "support/fake_profile_files.h"
#include "support/fake_registry.h"
#include "support/file_system_contract.h"
#include "support/profile_files_contract.h"
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

struct FakeProfileFilesHost {
    FakeFileSystem files;
    FakeCodePage codePage;
    FakeProfileFiles profiles{files, codePage};
    ProfileFiles& Subject() { return profiles; }
    std::string File() { return "C:\\blends.inf"; }
    void Put(const std::string& bytes) { files.PutFile(File(), bytes); }
    std::string Bytes() { return files.Bytes(File()); }
};
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ProfileFilesContract, FakeProfileFilesHost);

}  // namespace morpho::test
