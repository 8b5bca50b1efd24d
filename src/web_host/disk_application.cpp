#include "web_host/disk_application.h"

#include "formats/web_address.h"
#include "formats/web_text.h"
#include "text/ignoring_case.h"
#include "web_host/disk_page_document.h"
#include "web_host/disk_web.h"
#include "web_host/limits.h"
#include "web_host/page_walk.h"
#include "web_host/refusal.h"
#include "web_host/theme_of_web.h"
#include "web_host/web_save_transaction.h"

namespace morpho {

namespace {

constexpr int kEnglish = 1033;

class DiskLanguageSettings : public LanguageSettings {
  public:
    int LanguageId(LanguageUse) const override { return kEnglish; }
};

std::string TextOfPage(const WebFiles& web, const WebPath& page) {
    // A picture that stands alone is shown as a page of it.
    if (!IsPageName(page.back()))
        return "<img src=\"" + EncodedReferences(EncodedPercents(page.back())) + "\">";
    const auto folder = web.OpenFolder({page.begin(), page.end() - 1});
    return PageText(ReadWholeFile(*folder, page.back(), kMaxFileBytes)).Text();
}

}  // namespace

DiskApplication::DiskApplication(Disk& disk, FileSystem& files, const std::string& cacheFolder,
                                 HostOptions options)
    : disk_(disk),
      files_(files),
      unpackFolder_(cacheFolder + "\\FrontPageTempDir\\mstheme"),
      options_(std::move(options)),
      bars_(options_.version, options_.clipboard) {}

void DiskApplication::Open(const std::string& path, const std::optional<std::string>& onlyTheme,
                           const ThemeStores& stores) {
    auto web = std::make_shared<WebSession>(
        disk_, WebOptions{path, unpackFolder_, onlyTheme, stores}, log_);
    web->Reports().SetReporter(reporter_);
    web->SetWork(work_);
    web_ = std::move(web);
}

void DiskApplication::SetLog(WebReports::Log log) {
    log_ = std::move(log);
    if (web_) web_->Reports().SetLog(log_);
}

void DiskApplication::SetLongWork(LongWork work) {
    work_ = std::move(work);
    if (web_) web_->SetWork(work_);
}

void DiskApplication::SetReporter(WebReports::Reporter reporter) {
    reporter_ = std::move(reporter);
    if (web_) web_->Reports().SetReporter(reporter_);
}

std::unique_ptr<PageDocument> DiskApplication::ActiveDocument() {
    const auto active = web_ && activePage_ ? activePage_() : std::nullopt;
    if (!active || active->page.empty()) return nullptr;
    const WebFiles& web = web_->Files();
    try {
        auto document = std::make_unique<DiskPageDocument>(
            PageAddresses{EscapedAddress(web.UrlOf(active->page)), EscapedAddress(web.Url()),
                          EscapesAddresses()},
            TextOfPage(web, active->page));
        if (active->picture) {
            document->SelectPicture(*active->picture);
        } else {
            document->SelectHtml(active->html);
        }
        return document;
    } catch (const RunTimeError& error) {
        web_->Reports().WriteLog(error.what());
        return nullptr;
    }
}

std::string DiskApplication::MakeAbs(std::string_view baseUrl, std::string_view url) const {
    std::string root = web_ ? web_->Files().Url() : std::string();
    if (EscapesAddresses()) root = EscapedAddress(root);
    return CombinedAddress(CombinedAddress(root + "/", baseUrl), url, root);
}

std::unique_ptr<Web> DiskApplication::ActiveWeb() {
    return web_ ? std::make_unique<DiskWeb>(web_, files_) : nullptr;
}

std::unique_ptr<LanguageSettings> DiskApplication::Languages() const {
    return std::make_unique<DiskLanguageSettings>();
}

std::unique_ptr<SaveTransaction> DiskApplication::BeginSave(std::string_view themeName,
                                                            std::string_view sourceName) {
    if (!web_) return nullptr;
    auto save = std::make_unique<WebSaveTransaction>(*web_, std::string(themeName),
                                                     WebSaveTransaction::Purpose::kSave);
    sourceOfSave_ = sourceName;
    if (web_->PagesFollow()) save->ChoosePages({.ofWeb = true, .ownTheme = sourceOfSave_});
    return save;
}

void DiskApplication::ApplyInPlaceOf(const std::string& themeName, const std::string& earlier) {
    if (!web_) RefuseCall("No web is open.");
    // The search for a page, too, may read them all.
    web_->Work().run([&] {
        const bool isOfWeb = EqualIgnoringCase(ThemeOfWeb(web_->Files().Root()), earlier);
        const PageChoice pages{.ofWeb = isOfWeb, .ownTheme = earlier};
        if (!HasPage(web_->Files(), pages))
            RefuseCall("No page of the web has the theme \"" + earlier + "\".");
        WebSaveTransaction change(*web_, themeName, WebSaveTransaction::Purpose::kApply);
        change.ChoosePages(pages);
        change.ApplyTheme(themeName);
        change.RefreshAtCommit();
        change.Commit();
    });
}

}  // namespace morpho
