#include <gtest/gtest.h>

#include "text/ignoring_case.h"
#include "text/printable.h"
#include "text/utf8.h"
#include "text/windows_1252.h"

namespace morpho {
namespace {

TEST(Windows1252, EveryByteSurvivesARoundTrip) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    const std::string text = TextFromWindows1252(bytes);
    EXPECT_TRUE(IsUtf8(text));
    EXPECT_EQ(Windows1252FromText(text), bytes);
}

TEST(Windows1252, WritesTheCharactersThatItHas) {
    EXPECT_EQ(TextFromWindows1252("Caf\xE9 \x80\x92"), "Café €’");
    EXPECT_EQ(Windows1252FromText("Grün – ™"), "Gr\xFCn \x96 \x99");
    EXPECT_EQ(Windows1252FromText("Ω日\xFF"), "???");
    const auto entity = [](char32_t character) {
        return "&#" + std::to_string(static_cast<unsigned>(character)) + ";";
    };
    EXPECT_EQ(Windows1252FromText("é Ω", entity), "\xE9 &#937;");
}

TEST(Utf8, KnowsWhatIsNoUtf8) {
    for (const std::string_view good : {"", "a", "é", "日本", "😀", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(IsUtf8(good)) << good;
    for (const std::string_view bad : {"\x80", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80",
                                       "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xFF", "a\xE9z"})
        EXPECT_FALSE(IsUtf8(bad)) << bad;
    EXPECT_EQ(ValidUtf8("a\xE9z"), "a\xEF\xBF\xBDz");
}

TEST(Utf16, GoesThereAndBack) {
    EXPECT_EQ(Utf16FromUtf8("aé😀"), std::string_view("a\0\xE9\0\x3D\xD8\x00\xDE", 8));
    EXPECT_EQ(Utf8FromUtf16(Utf16FromUtf8("aé😀")), "aé😀");
    EXPECT_EQ(Utf8FromUtf16(std::string_view("\x3D\xD8\x61\0\x62", 5)),
              "\xEF\xBF\xBD"
              "a");
}

TEST(IgnoringCase, NamesAreFoldedAsUnicodeSays) {
    const std::pair<std::string_view, std::string_view> same[] = {
        {"Blends", "bLENDS"}, {"Grün", "GRÜN"}, {"šum", "ŠUM"},     {"Łódź", "łÓDŹ"},
        {"ДОМ", "дом"},       {"ΣΑΣ", "σας"},   {"ẞ", "ß"},         {"\u212A", "k"},
        {"Ⱥ", "ⱥ"},           {"𐐀", "𐐨"},       {"x\xFF", "X\xFF"}, {"×", "×"}};
    for (const auto& [a, b] : same) {
        EXPECT_TRUE(EqualIgnoringCase(a, b)) << a;
        EXPECT_EQ(Folded(a), Folded(b));
    }
    for (const auto& [a, b] : {std::pair{"ß", "ss"}, {"×", "÷"}, {"a", "ab"}, {"\xC0", "\xE0"}}) {
        EXPECT_FALSE(EqualIgnoringCase(a, b)) << a;
        EXPECT_NE(Folded(a), Folded(b));
    }
}

TEST(Printable, ControlsNoTerminal) {
    EXPECT_EQ(Printable("a\x1B[2J\x7F\u009B1m\r\nÂé\xC2", LineEnds::kKept), "a?[2J??1m?\nÂé\xC2");
    EXPECT_EQ(Printable("a\n", LineEnds::kReplaced), "a?");
}

TEST(IgnoringCase, MarkupKeepsItsPositions) {
    EXPECT_EQ(AsciiLowered("URL(Ⱥ\u212A"), "url(Ⱥ\u212A");
    EXPECT_EQ(ReplacedIgnoringAsciiCase("\u212A#Key##KEY#", "#key#", "x"), "\u212Axx");
}

}  // namespace
}  // namespace morpho
