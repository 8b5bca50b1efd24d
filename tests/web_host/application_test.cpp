#include "support/application_contract.h"
#include "support/temporary_folder.h"
#include "support/this_computer.h"
#include "web_host/disk_application.h"

namespace morpho::test {
namespace {

class StandIn {
  public:
    StandIn() {
        std::filesystem::copy(std::filesystem::path(MORPHO_SOURCE_DIR) / "samples/larkfell",
                              folder_.At("web"), std::filesystem::copy_options::recursive);
        application_.Open(Path("web"), {}, {Path("user"), Path("all"), Path("saves")});
    }

    Application& Subject() { return application_; }
    const TemporaryFolder& Folder() const { return folder_; }
    std::string Path(const std::string& name) const { return WindowsPath(folder_ / name); }
    void Select(const std::string& page, int picture) {
        application_.SetActivePage([=] { return ActivePage{{page}, picture}; });
    }

  private:
    TemporaryFolder folder_;
    RealDisk disk_;
    RealFileSystem files_;
    DiskApplication application_{disk_, files_, Path("cache")};
};
INSTANTIATE_TYPED_TEST_SUITE_P(StandIn, ApplicationContract, StandIn);

}  // namespace
}  // namespace morpho::test
