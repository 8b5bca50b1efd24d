#include "formats/css_reader.h"

#include <gtest/gtest.h>

#include <chrono>

namespace morpho {
namespace {

// The rules as one line: selector{name|value;name|value} selector{...}
void ExpectRules(std::string_view sheet, std::string_view rules) {
    std::string shown;
    for (const CssRule& rule : ReadCss(sheet)) {
        shown += (shown.empty() ? "" : " ") + rule.selector + "{";
        for (const CssDeclaration& declaration : rule.declarations)
            shown += declaration.name + "|" + declaration.value + ";";
        shown += "}";
    }
    EXPECT_EQ(shown, rules) << sheet;
}

TEST(CssReader, TakesBothWritingsOfThemeSheets) {
    ExpectRules(
        "\r\n.mstheme\r\n{\r\n\tnav-banner-image:\turl(bann.gif);\r\n\tcolor: red;\r\n}\r\n",
        ".mstheme{nav-banner-image|url(bann.gif);color|red;}");
    ExpectRules("a:link{color:#0066CC;}\n.mstheme{bullet-1:url('b1.gif')}",
                "a:link{color|#0066CC;} .mstheme{bullet-1|url('b1.gif');}");
}

TEST(CssReader, KeepsValuesAsWritten) {
    ExpectRules("a{x:URL( \"a b;}.gif\" )}", "a{x|URL( \"a b;}.gif\" );}");
    ExpectRules("a{x:url( a;b}c.gif\t)}", "a{x|url( a;b}c.gif\t);}");
    ExpectRules("a{x: 1px   solid ;y:f(a;b) [c;d] {e;f}}",
                "a{x|1px   solid;y|f(a;b) [c;d] {e;f};}");
    ExpectRules("a{--own:1;-moz-b:2;NAV-X:3;\xC3\xA4:4}",
                "a{--own|1;-moz-b|2;NAV-X|3;\xC3\xA4|4;}");
    ExpectRules("a{x:'it\\'s';y:\"q\\\nr\"}", "a{x|'it\\'s';y|\"q\\\nr\";}");
    ExpectRules("a{x:url(", "a{x|url(;}");
    ExpectRules("a{x:'open", "a{x|'open;}");
}

TEST(CssReader, WritesSelectorsOnOneLine) {
    ExpectRules("  .a\r\n\t .b ,\n.c{}", ".a .b , .c{}");
    ExpectRules("/*1*/a/*2*/b/*3*/{} .c/**/.d/**/ e{}", "a/**/b{} .c.d e{}");
    ExpectRules("a[href='x{y}']:not({}){}", "a[href='x{y}']:not({}){}");
    ExpectRules("{x:y} b{} c'd\n{x:y} e{}", "b{} e{}");
}

TEST(CssReader, PassesOverCommentsAndAtRules) {
    ExpectRules("<!-- a{x:y} -->b{}", "a{x|y;} b{}");
    ExpectRules("a{/*x:1;*/y/*;*/:/*}*/2/**/3/*z*/}", "a{y|2 3;}");
    ExpectRules("@import url(x.css);@charset 'a';b{}", "b{}");
    ExpectRules("@media print (a{};){.mstheme{x:y}@page{}}b{}", "b{}");
    ExpectRules("a{@x y;z:1;@page{q:2}w:3}", "a{z|1;w|3;}");
    ExpectRules("a{@x}b{y:1}", "a{} b{y|1;}");
    ExpectRules("a{} @media x {b{}", "a{}");
    ExpectRules("/* open a{}", "");
}

TEST(CssReader, DropsBrokenPartsOnly) {
    ExpectRules("a{x;:b;1:c;;y:1}", "a{y|1;}");
    ExpectRules("a{x:;y: ;z:1}", "a{z|1;}");
    ExpectRules("a{x:'bad\n;y:1}", "a{y|1;}");
    ExpectRules("a{x:url(b c.gif);y:url(b\"c);z:1}", "a{z|1;}");
    ExpectRules("a{x:1);y:2}", "a{y|2;}");
    ExpectRules("a{b{x:1}y:2;z:3}", "a{z|3;}");
    ExpectRules("a{x:(;y:1}b{}", "a{}");
    ExpectRules("}a{x:1", "}a{x|1;}");
    ExpectRules("a", "");
}

TEST(CssReader, ResolvesEscapesInPropertyNames) {
    ExpectRules("a{\\62 ullet-1:b}", "a{bullet-1|b;}");
    ExpectRules("a{b\\000075\r\nllet:b;b\\:c:d}", "a{bullet|b;b:c|d;}");
    ExpectRules("a{b\\g\n:c}", "a{bg|c;}");
    ExpectRules("a{\\0 x:d}", "a{\xEF\xBF\xBDx|d;}");
}

TEST(CssReader, TheLastDeclarationOfAPropertyWins) {
    const auto rules = ReadCss(".mstheme{Bullet-1:url(a.gif);bullet-1:url(b.gif)}");
    EXPECT_EQ(rules.at(0).Value("BULLET-1"), "url(b.gif)");
    EXPECT_FALSE(rules.at(0).Value("bullet-2"));
}

TEST(CssReader, TakesTimeInProportionHoweverTheSheetIsNested) {
    for (const std::string_view unit :
         {"{", "}", "(", "a{", "a{b:", "@x{", "/*", "\\", "url(", "'\n", "<!--", "a{b:c}"}) {
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
