#include "windows_host/front_page_application.h"

#include "windows_host/command_bar_views.h"
#include "windows_host/page_document_view.h"
#include "windows_host/web_view.h"

namespace morpho {

namespace {

class LanguagesView : public LanguageSettings {
  public:
    explicit LanguagesView(DispatchCaller settings) : settings_(std::move(settings)) {}

    int LanguageId(LanguageUse use) const override {
        return IntegerOf(settings_.Get("LanguageID", {static_cast<int>(use)}));
    }

  private:
    DispatchCaller settings_;
};

}  // namespace

std::unique_ptr<CommandBars> FrontPageApplication::Bars() {
    return ViewOfCommandBars(application_.GetDispatch("CommandBars"));
}

std::unique_ptr<PageDocument> FrontPageApplication::ActiveDocument() {
    return ViewOfDocument(application_.GetDispatch("ActiveDocument"));
}

std::string FrontPageApplication::MakeAbs(std::string_view baseUrl, std::string_view url) const {
    return TextOf(application_.Get("MakeAbs", {baseUrl, url}));
}

void FrontPageApplication::RefreshViews() {
    const DispatchCaller window = application_.GetDispatch("ActivePageWindow");
    if (window && IntegerOf(window.Get("IsDirty")) == 0) window.Call("Refresh");
}

std::unique_ptr<Web> FrontPageApplication::ActiveWeb() {
    return ViewOfWeb(application_.GetDispatch("ActiveWeb"));
}

std::unique_ptr<LanguageSettings> FrontPageApplication::Languages() const {
    return std::make_unique<LanguagesView>(application_.GetDispatch("LanguageSettings"));
}

}  // namespace morpho
