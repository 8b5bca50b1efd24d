#pragma once

#include "platform/front_page.h"
#include "windows_com/dispatch_caller.h"

namespace morpho {

// FrontPage itself: views of its automation objects, whose members are called by name. It has no
// transactions: BeginSave gives null, and every change of a web is made as the call comes. Only
// what the caller puts back itself is rolled back.
class FrontPageApplication : public Application {
  public:
    // `application` is what an add-in gets at its connection.
    explicit FrontPageApplication(DispatchCaller application)
        : application_(std::move(application)) {}

    std::string Version() const override { return TextOf(application_.Get("Version")); }
    std::unique_ptr<CommandBars> Bars() override;
    std::unique_ptr<PageDocument> ActiveDocument() override;
    std::string MakeAbs(std::string_view baseUrl, std::string_view url) const override;
    // A page with unsaved changes stays as it is: it would lose them.
    void RefreshViews() override;
    std::unique_ptr<Web> ActiveWeb() override;
    std::unique_ptr<LanguageSettings> Languages() const override;

  private:
    DispatchCaller application_;
};

}  // namespace morpho
