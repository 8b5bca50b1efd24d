#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/front_page.h"

namespace morpho::test {

// A host in memory. Tests set the public data; the views that it hands out read and write them.
class FakeApplication : public Application {
  public:
    struct WebData {
        std::vector<Theme> themes;
        std::string themeOfWeb;
    };

    std::string version = "6.0";
    std::optional<WebData> web = WebData{};  // the open web, if any
    std::map<LanguageUse, int> languages{{LanguageUse::kExecutionMode, 1033},
                                         {LanguageUse::kUserInterface, 1033},
                                         {LanguageUse::kPreviousUserInterface, 0},
                                         {LanguageUse::kInstall, 1033}};
    bool refusesPages = false;  // opening a page throws kAutomation
    // What was done with pages, in order: "AddPageWindow", "Insert AfterBegin", "Close", "Close
    // saved".
    std::vector<std::string> pageCalls;
    int openPages = 0;

    std::string Version() const override { return version; }
    std::unique_ptr<Web> ActiveWeb() override;
    std::unique_ptr<LanguageSettings> Languages() const override;
};

}  // namespace morpho::test
