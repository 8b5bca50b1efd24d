#include "desktop/web/disk_page.h"

#include <gtest/gtest.h>

#include <chrono>

#include "platform/run_time_error.h"

namespace morpho {
namespace {

class DiskPageTest : public testing::Test {
  protected:
    // The selectors of all style sheets of a page with this text: "a b|c".
    std::string Selectors(std::string_view html) {
        const auto window = web_.AddPageWindow();
        window->Document()->InsertAdjacentHtml("AfterBegin", html);
        return SelectorsOf(*window->Document());
    }
    std::string SelectorsOf(const PageDocument& document) {
        std::string shown;
        try {
            for (int index = 0;; ++index) {
                const auto sheet = document.StyleSheetAt(index);
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
};

TEST_F(DiskPageTest, ReadsTheStyleSheetsThatAreInserted) {
    EXPECT_EQ(Selectors("\r\n<style>\r\n.mstheme\r\n{\r\n}\r\n</style>.\r\n"), ".mstheme");
    EXPECT_EQ(Selectors("<STYLE type='text/css'><!-- a{} --></STYLE><p><style>b{} c{}</style>"),
              "a|b c");
    EXPECT_EQ(Selectors("<style>a{}"), "a");
    EXPECT_EQ(Selectors("<style>a{x:'</b>'} </style"), "a");
    EXPECT_EQ(Selectors("<style></style><style>a{}</style>"), "|a");
    EXPECT_EQ(Selectors("<!--<style>a{}</style>--><textarea><style>b{}</style></textarea>"), "");
    EXPECT_EQ(
        Selectors("<style type='text/less'>a{}</style><template><style>b{}</style></template>"),
        "");
    EXPECT_EQ(Selectors("a{}"), "");
}

TEST_F(DiskPageTest, KeepsUnknownPropertiesOfARule) {
    const auto window = web_.AddPageWindow();
    const auto document = window->Document();
    document->InsertAdjacentHtml("AfterBegin",
                                 "<style>.mstheme{nav-banner-image:url(a.gif)}</style>");
    const auto rule = document->StyleSheetAt(0)->Rule(0);
    EXPECT_EQ(rule->Attribute("Nav-Banner-Image"), "url(a.gif)");
    EXPECT_FALSE(rule->Attribute("color"));
    EXPECT_THROW(document->StyleSheetAt(0)->Rule(1), RunTimeError);
    EXPECT_THROW(document->StyleSheetAt(-1), RunTimeError);
}

TEST_F(DiskPageTest, InsertsBeforeAndBehindWhatIsThere) {
    const auto window = web_.AddPageWindow();
    const auto document = window->Document();
    document->InsertAdjacentHtml("BeforeEnd", "<style>c{}</style>");
    document->InsertAdjacentHtml("afterbegin", "<style>a{}</style><style>b{}</style>");
    document->InsertAdjacentHtml("BeforeEnd", "<style>d{}</style>");
    EXPECT_EQ(SelectorsOf(*document), "a|b|c|d");
    EXPECT_THROW(document->InsertAdjacentHtml("AfterEnd", ""), RunTimeError);
}

TEST_F(DiskPageTest, AClosedPageAnswersNothing) {
    const auto window = web_.AddPageWindow();
    const auto document = window->Document();
    EXPECT_THROW(window->Close(true), RunTimeError);
    window->Close(false);
    EXPECT_THROW(window->Close(false), RunTimeError);
    EXPECT_THROW(window->Document(), RunTimeError);
    EXPECT_THROW(document->InsertAdjacentHtml("AfterBegin", ""), RunTimeError);
    EXPECT_THROW(document->StyleSheetAt(0), RunTimeError);
}

TEST_F(DiskPageTest, MarkupThatWasNeverClosedTakesNoTimeToSpeakOf) {
    for (const std::string unit :
         {"<div>", "<b x><p>", "<a b c d e>", "<", "<style>", "</", "<!--"}) {
        std::string html = "<style>a{}</style>";
        while (html.size() < 300'000)
            html += unit;
        const auto start = std::chrono::steady_clock::now();
        EXPECT_TRUE(Selectors(html).starts_with("a")) << unit;
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << unit;
    }
}

}  // namespace
}  // namespace morpho
