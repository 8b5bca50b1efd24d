#include "desktop/css/css_reader.h"

#include <gtest/gtest.h>

#include <chrono>

namespace morpho {
namespace {

// The rules as one line: selector{name|value;name|value} selector{...}
std::string Shown(const std::vector<CssRule>& rules) {
    std::string shown;
    for (const CssRule& rule : rules) {
        shown += (shown.empty() ? "" : " ") + rule.selector + "{";
        for (const CssDeclaration& declaration : rule.declarations)
            shown += declaration.name + "|" + declaration.value + ";";
        shown += "}";
    }
    return shown;
}

struct Case {
    std::string_view sheet;
    std::string_view rules;
};

void ExpectRules(std::initializer_list<Case> cases) {
    for (const Case& c : cases)
        EXPECT_EQ(Shown(ReadCss(c.sheet)), c.rules) << c.sheet;
}

TEST(CssReader, TakesBothWritingsOfThemeSheets) {
    ExpectRules({
        {"\r\n.mstheme\r\n{\r\n\tnav-banner-image:\turl(bann.gif);\r\n\tcolor: "
         "rgb(0,51,153);\r\n}\r\n",
         ".mstheme{nav-banner-image|url(bann.gif);color|rgb(0,51,153);}"},
        {"a:link{color:#0066CC;}\n.mstheme{bullet-1:url(b1.gif);top-bar-button:url(t.gif);}",
         "a:link{color|#0066CC;} .mstheme{bullet-1|url(b1.gif);top-bar-button|url(t.gif);}"},
        {"body { background-image: url('back.jpg') }", "body{background-image|url('back.jpg');}"},
    });
}

TEST(CssReader, KeepsValuesAsWritten) {
    ExpectRules({
        {"a{x:URL( \"a b;}.gif\" )}", "a{x|URL( \"a b;}.gif\" );}"},
        {"a{x:url( a/b.gif\t)}", "a{x|url( a/b.gif\t);}"},
        {"a{x:url(a;b}c.gif)}", "a{x|url(a;b}c.gif);}"},
        {"a{x: 1px   solid ;y:f(a;b) [c;d] {e;f}}", "a{x|1px   solid;y|f(a;b) [c;d] {e;f};}"},
        {"a{x:y !important}", "a{x|y !important;}"},
        {"a{--own:1;-moz-b:2;NAV-X:3;\xC3\xA4:4}", "a{--own|1;-moz-b|2;NAV-X|3;\xC3\xA4|4;}"},
        {"a{x:'it\\'s';y:\"q\\\nr\"}", "a{x|'it\\'s';y|\"q\\\nr\";}"},
        {"a{x:url(", "a{x|url(;}"},
        {"a{x:'open", "a{x|'open;}"},
    });
}

TEST(CssReader, WritesSelectorsOnOneLine) {
    ExpectRules({
        {"  .a\r\n\t .b ,\n.c{}", ".a .b , .c{}"},
        {"/*1*/.mstheme/*2*/{}", ".mstheme{}"},
        {"a/**/b{}", "a b{}"},
        {"a[href='x{y}']{}", "a[href='x{y}']{}"},
        {"a:not({}){}", "a:not({}){}"},
        {"{x:y} b{}", "b{}"},
    });
}

TEST(CssReader, PassesOverCommentsAndAtRules) {
    ExpectRules({
        {"<!-- a{x:y} -->b{}", "a{x|y;} b{}"},
        {"a{/*x:1;*/y/*;*/:/*}*/2/*z*/}", "a{y|2;}"},
        {"a{x:1/**/2}", "a{x|1 2;}"},
        {"@import url(x.css);@charset 'a';b{}", "b{}"},
        {"@media print{.mstheme{x:y}@page{}}b{}", "b{}"},
        {"@media (a{};){c{}}b{}", "b{}"},
        {"a{@x y;z:1;@page{q:2}w:3}", "a{z|1;w|3;}"},
        {"a{@x}b{y:1}", "a{} b{y|1;}"},
        {"a{} @media x {b{}", "a{}"},
        {"/* open a{}", ""},
    });
}

TEST(CssReader, DropsBrokenPartsOnly) {
    ExpectRules({
        {"a{x;y:1}", "a{y|1;}"},
        {"a{x:;y: ;z:1}", "a{z|1;}"},
        {"a{;;:b;1:c;y:2}", "a{y|2;}"},
        {"a{x:'bad\n;y:1}", "a{y|1;}"},
        {"a{x:url(b c.gif);y:1}", "a{y|1;}"},
        {"a{x:url(b\"c);y:1}", "a{y|1;}"},
        {"a{x:1);y:2}", "a{y|2;}"},
        {"a{b{x:1}y:2;z:3}", "a{z|3;}"},
        {"a{x:(;y:1}b{}", "a{}"},
        {"}a{x:1}", "}a{x|1;}"},
        {"a{x:1", "a{x|1;}"},
        {"a", ""},
        {"", ""},
    });
}

TEST(CssReader, ResolvesEscapesInPropertyNames) {
    ExpectRules({
        {"a{\\62 ullet-1:b}", "a{bullet-1|b;}"},
        {"a{b\\000075\r\nllet:b}", "a{bullet|b;}"},
        {"a{b\\:c:d}", "a{b:c|d;}"},
        {"a{\\0 x:d}", "a{\xEF\xBF\xBDx|d;}"},
    });
}

TEST(CssReader, TheLastDeclarationOfAPropertyWins) {
    const auto rules = ReadCss(".mstheme{Bullet-1:url(a.gif);bullet-1:url(b.gif)}");
    ASSERT_EQ(rules.size(), 1U);
    EXPECT_EQ(rules[0].Value("BULLET-1"), "url(b.gif)");
    EXPECT_FALSE(rules[0].Value("bullet-2"));
}

TEST(CssReader, TakesTimeInProportionHoweverTheSheetIsNested) {
    for (const std::string_view unit :
         {"{", "}", "(", "[", "a{", "a{b:", "@x{", "/*", "\\", "url(", "'\n", "<!--", "a{b:c}"}) {
        std::string sheet;
        while (sheet.size() < 1'000'000)
            sheet += unit;
        const auto start = std::chrono::steady_clock::now();
        ReadCss(sheet);
        // A quadratic reader would take minutes; the bound leaves room for a sanitizer.
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10)) << unit;
    }
}

}  // namespace
}  // namespace morpho
