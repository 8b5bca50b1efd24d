#include "formats/blank_page.h"

#include <gtest/gtest.h>

#include <chrono>

#include "platform/run_time_error.h"

namespace morpho {
namespace {

// The selectors of all style sheets of a page into which these texts were put, the later ones
// before the earlier: "a b|c".
std::string Selectors(std::initializer_list<std::string_view> texts) {
    const auto document = BlankPageWindow(std::make_shared<BlankPage>()).Document();
    for (const std::string_view text : texts)
        document->InsertAdjacentHtml("AfterBegin", text);
    std::string shown;
    try {
        for (int index = 0;; ++index) {
            const auto sheet = document->StyleSheetAt(index);
            shown += index > 0 ? "|" : "";
            for (int rule = 0; rule < sheet->RuleCount(); ++rule)
                shown += (rule > 0 ? " " : "") + sheet->Rule(rule)->SelectorText();
        }
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::kAutomation);
    }
    return shown;
}

TEST(BlankPage, ReadsTheStyleSheetsThatAreInserted) {
    EXPECT_EQ(Selectors({"\r\n<style>\r\n.mstheme\r\n{\r\n}\r\n</style>.\r\n"}), ".mstheme");
    EXPECT_EQ(Selectors({"<STYLE type='text/css'><!-- a{} --></STYLE><style>b{} c{}</style>"}),
              "a|b c");
    EXPECT_EQ(Selectors({"<style>a{}</style>", "<p><style>b{}</style>"}), "b|a");
    EXPECT_EQ(Selectors({"<style></style><style>a{x:'</b>'} </style"}), "|a");
    EXPECT_EQ(Selectors({"<!--<style>a{}</style>--><textarea><style>b{}</style></textarea>"}), "");
    EXPECT_EQ(Selectors({"<style type='text/less'>a{}</style>"}), "");
    EXPECT_EQ(Selectors({"<template><style>b{}</style></template>"}), "");
}

TEST(BlankPage, AClosedOneAnswersNothing) {
    const auto page = std::make_unique<BlankPageWindow>(std::make_shared<BlankPage>());
    const auto document = page->Document();
    EXPECT_THROW(document->InsertAdjacentHtml("AfterEnd", ""), RunTimeError);
    EXPECT_THROW(page->Close(true), RunTimeError) << "it has no name to be saved by";
    page->Close(false);
    EXPECT_THROW(page->Document(), RunTimeError);
    EXPECT_THROW(document->InsertAdjacentHtml("AfterBegin", ""), RunTimeError);
}

TEST(BlankPage, MarkupThatWasNeverClosedTakesNoTimeToSpeakOf) {
    for (const std::string unit : {"<div>", "<b x><p>", "<a b c d e>", "<", "<style>", "<!--"}) {
        std::string html = "<style>a{}</style>";
        while (html.size() < 300'000)
            html += unit;
        const auto start = std::chrono::steady_clock::now();
        EXPECT_TRUE(Selectors({html}).starts_with("a")) << unit;
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << unit;
    }
}

}  // namespace
}  // namespace morpho
