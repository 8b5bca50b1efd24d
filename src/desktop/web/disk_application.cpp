#include "desktop/web/disk_application.h"

#include "desktop/disk/disk_path.h"
#include "desktop/web/disk_web.h"

namespace morpho {

namespace {

constexpr int kEnglish = 1033;

class DiskLanguageSettings : public LanguageSettings {
  public:
    int LanguageId(LanguageUse) const override { return kEnglish; }
};

}  // namespace

DiskApplication::DiskApplication(const std::string& cacheFolder)
    : unpackFolder_(JoinDiskPath(cacheFolder, "FrontPageTempDir/mstheme")) {}

void DiskApplication::Open(const std::string& folder, const std::optional<std::string>& onlyTheme) {
    web_ = std::make_shared<const OpenedWeb>(OpenWebFolder(folder, unpackFolder_, onlyTheme));
}

std::unique_ptr<Web> DiskApplication::ActiveWeb() {
    return web_ ? std::make_unique<DiskWeb>(web_) : nullptr;
}

std::unique_ptr<LanguageSettings> DiskApplication::Languages() const {
    return std::make_unique<DiskLanguageSettings>();
}

}  // namespace morpho
