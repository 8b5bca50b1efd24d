#include "desktop/web/disk_page.h"

#include <gtest/gtest.h>

#include <chrono>

#include "platform/run_time_error.h"

namespace morpho {
namespace {

class DiskPageTest : public testing::Test {
  protected:
    void Start(const std::string& html) {
        document_ = web_.AddPageWindow()->Document();
        document_->InsertAdjacentHtml("AfterBegin", html);
    }
    // The selectors of all style sheets: "a b|c".
    std::string Selectors() {
        std::string shown;
        try {
            for (int index = 0;; ++index) {
                const auto sheet = document_->StyleSheetAt(index);
                shown += index > 0 ? "|" : "";
                for (int rule = 0; rule < sheet->RuleCount(); ++rule)
                    shown += (rule > 0 ? " " : "") + sheet->Rule(rule)->SelectorText();
            }
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::kAutomation);
        }
        return shown;
    }

    DiskWebWindow web_;
    std::unique_ptr<PageWindow> window_ = web_.AddPageWindow();
    std::unique_ptr<PageDocument> document_ = window_->Document();
};

TEST_F(DiskPageTest, ReadsTheStyleSheetsThatAreInserted) {
    const auto expectSelectors = [this](const char* html, const char* selectors) {
        Start(html);
        EXPECT_EQ(Selectors(), selectors) << html;
    };
    expectSelectors("\r\n<style>\r\n.mstheme\r\n{\r\n}\r\n</style>.\r\n", ".mstheme");
    expectSelectors("<STYLE type='text/css'><!-- a{} --></STYLE><p><style>b{} c{}</style>",
                    "a|b c");
    expectSelectors("<style></style><style>a{x:'</b>'} </style", "|a");
    expectSelectors("<!--<style>a{}</style>--><textarea><style>b{}</style></textarea>", "");
    expectSelectors("<style type='text/less'>a{}</style><template><style>b{}</style></template>",
                    "");
}

TEST_F(DiskPageTest, InsertsBeforeAndBehindWhatIsThereUntilItIsClosed) {
    document_->InsertAdjacentHtml("BeforeEnd",
                                  "<style>.mstheme{nav-banner-image:url(a.gif)}</style>");
    document_->InsertAdjacentHtml("afterbegin", "<style>a{}</style><style>b{}</style>");
    EXPECT_EQ(Selectors(), "a|b|.mstheme");
    EXPECT_EQ(document_->StyleSheetAt(2)->Rule(0)->Attribute("Nav-Banner-Image"), "url(a.gif)");
    EXPECT_THROW(document_->StyleSheetAt(2)->Rule(1), RunTimeError);
    EXPECT_THROW(document_->StyleSheetAt(-1), RunTimeError);
    EXPECT_THROW(document_->InsertAdjacentHtml("AfterEnd", ""), RunTimeError);
    EXPECT_THROW(window_->Close(true), RunTimeError) << "it has no name to be saved by";
    window_->Close(false);
    EXPECT_THROW(window_->Document(), RunTimeError);
    EXPECT_THROW(document_->InsertAdjacentHtml("AfterBegin", ""), RunTimeError);
}

TEST_F(DiskPageTest, MarkupThatWasNeverClosedTakesNoTimeToSpeakOf) {
    for (const std::string unit : {"<div>", "<b x><p>", "<a b c d e>", "<", "<style>", "<!--"}) {
        std::string html = "<style>a{}</style>";
        while (html.size() < 300'000)
            html += unit;
        const auto start = std::chrono::steady_clock::now();
        Start(html);
        EXPECT_TRUE(Selectors().starts_with("a")) << unit;
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << unit;
    }
}

}  // namespace
}  // namespace morpho
