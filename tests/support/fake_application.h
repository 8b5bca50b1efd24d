#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/front_page.h"
#include "support/fake_file_system.h"

namespace morpho::test {

// A host in memory, with its web in a folder of the file system. Tests set the public data; the
// views that it hands out read and write them.
class FakeApplication : public Application {
  public:
    struct OpenPage {
        std::string location;
        std::string theme;
    };
    struct WebData {
        std::vector<Theme> themes;
        std::string themeOfWeb;
        std::optional<std::string> showsHiddenPages;  // the property of that name
        std::vector<OpenPage> pages;
    };
    // The page that the person works on, with pictures by address and what is selected, as HTML.
    struct ActivePage {
        std::string url;
        std::vector<std::string> pictures;
        std::string selection;
    };
    static constexpr std::string_view kWebFolder = "C:\\Web";

    explicit FakeApplication(FakeFileSystem& files) : webFiles(files) {}

    std::string version = "6.0";
    std::optional<WebData> web = WebData{};  // the open web, if any
    std::optional<ActivePage> page;
    std::map<LanguageUse, int> languages{{LanguageUse::kExecutionMode, 1033},
                                         {LanguageUse::kUserInterface, 1033},
                                         {LanguageUse::kPreviousUserInterface, 0},
                                         {LanguageUse::kInstall, 1033}};
    bool refusesPages = false;  // opening a blank page throws kAutomation
    int openedPages = 0;        // blank ones, ever
    int openPages = 0;          // and not closed yet
    // What was done with the web, in order: "ApplyTheme a", "ApplyTheme a to index.htm",
    // "Refresh", "RecalcHyperlinks"; also "RefreshViews".
    std::vector<std::string> webCalls;
    std::function<void()> whenRefreshed = [] {};  // what else "Refresh" does
    FakeFileSystem& webFiles;

    std::string Version() const override { return version; }
    std::unique_ptr<Web> ActiveWeb() override;
    std::unique_ptr<PageDocument> ActiveDocument() override;
    // Joins a relative address to the base's folder.
    std::string MakeAbs(std::string_view baseUrl, std::string_view url) const override;
    void RefreshViews() override { webCalls.emplace_back("RefreshViews"); }
    std::unique_ptr<LanguageSettings> Languages() const override;
};

}  // namespace morpho::test
