#include "desktop/web/disk_page.h"

#include <gtest/gtest.h>

#include <chrono>

#include "platform/run_time_error.h"

namespace morpho {
namespace {

class DiskPageTest : public testing::Test {
  protected:
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
        document_ = web_.AddPageWindow()->Document();
        document_->InsertAdjacentHtml("AfterBegin", html);
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

TEST_F(DiskPageTest, KeepsUnknownPropertiesOfARule) {
    document_->InsertAdjacentHtml("AfterBegin",
                                  "<style>.mstheme{nav-banner-image:url(a.gif)}</style>");
    const auto rule = document_->StyleSheetAt(0)->Rule(0);
    EXPECT_EQ(rule->Attribute("Nav-Banner-Image"), "url(a.gif)");
    EXPECT_FALSE(rule->Attribute("color"));
    EXPECT_THROW(document_->StyleSheetAt(0)->Rule(1), RunTimeError);
    EXPECT_THROW(document_->StyleSheetAt(-1), RunTimeError);
}

TEST_F(DiskPageTest, InsertsBeforeAndBehindWhatIsThere) {
    document_->InsertAdjacentHtml("BeforeEnd", "<style>c{}</style>");
    document_->InsertAdjacentHtml("afterbegin", "<style>a{}</style><style>b{}</style>");
    document_->InsertAdjacentHtml("BeforeEnd", "<style>d{}</style>");
    EXPECT_EQ(Selectors(), "a|b|c|d");
    EXPECT_THROW(document_->InsertAdjacentHtml("AfterEnd", ""), RunTimeError);
}

TEST_F(DiskPageTest, AClosedPageAnswersNothing) {
    EXPECT_THROW(window_->Close(true), RunTimeError);
    window_->Close(false);
    EXPECT_THROW(window_->Close(false), RunTimeError);
    EXPECT_THROW(window_->Document(), RunTimeError);
    EXPECT_THROW(document_->InsertAdjacentHtml("AfterBegin", ""), RunTimeError);
}

TEST_F(DiskPageTest, MarkupThatWasNeverClosedTakesNoTimeToSpeakOf) {
    for (const std::string unit : {"<div>", "<b x><p>", "<a b c d e>", "<", "<style>", "<!--"}) {
        std::string html = "<style>a{}</style>";
        while (html.size() < 300'000)
            html += unit;
        const auto start = std::chrono::steady_clock::now();
        document_ = web_.AddPageWindow()->Document();
        document_->InsertAdjacentHtml("AfterBegin", html);
        EXPECT_TRUE(Selectors().starts_with("a")) << unit;
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << unit;
    }
}

}  // namespace
}  // namespace morpho
