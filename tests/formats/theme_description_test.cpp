#include "formats/theme_description.h"

#include <gtest/gtest.h>

#include "formats/windows_1252_code_page.h"

namespace morpho {
namespace {

class ThemeDescriptionTest : public testing::Test {
  protected:
    void ExpectTitle(const std::string& bytes, const std::string& title) {
        EXPECT_EQ(ThemeDescription(codePage_, bytes).Title(), title) << bytes;
    }
    // What this title makes of the description.
    std::string Titled(const std::string& before, const std::string& title) {
        ThemeDescription description(codePage_, before);
        description.SetTitle(title);
        EXPECT_EQ(description.Title(), title);
        utf8_ = description.Utf8Bytes();
        return description.Bytes();
    }

    Windows1252CodePage codePage_;
    std::string utf8_;
};

TEST_F(ThemeDescriptionTest, ReadsTheFirstTitleInItsCoding) {
    ExpectTitle("; c\r\n[INFO]\r\nx=1\r\n Title = \"Sky\" \r\ntitle=b", "Sky");
    ExpectTitle("\xEF\xBB\xBF[info]\rtitle=' a '\r", " a ");
    ExpectTitle("[info]\ntitle=half\"\n[info]\ntitle=late", "half\"");
    ExpectTitle("[info]\n;title=x\ntitle\n[b]\ntitle=x", "");
    ExpectTitle(std::string("[info]\ntitle=Sea\0side", 22), "Sea");
    ExpectTitle("[info]\ncodepage=65001\ntitle=K\xC3\xBCste", "Küste");
    ExpectTitle("[info]\ncodepage=65001\ntitle=K\xFCste", "Küste");
    ExpectTitle("[info]\ncodepage=1252\ntitle=K\xFCste", "Küste");
    ExpectTitle("[info]\ntitle=K\xC3\xBCste", "Küste");
    EXPECT_TRUE(ThemeDescription(codePage_, "[info]\nReadOnly=TRUE\nreadonly=0").IsReadOnly());
    EXPECT_FALSE(ThemeDescription(codePage_, "[info]\nreadonly=no").IsReadOnly());
}

TEST_F(ThemeDescriptionTest, KeepsTheBytesOfATitleThatStaysTheSame) {
    for (const std::string title : {"K\xC3\xBCste", "K\xFCste"}) {
        const std::string info = "; c\n[info]\nReadOnly=0\nTitle = " + title + " \njunk\n";
        EXPECT_EQ(Titled(info + "[titles]\n;c\n1031=x\n1033=K\xC3\xBCste\n\n[x]\n", "Küste"),
                  info + "[titles]\n1033=K\xC3\xBCste\n;c\n\n[x]\n");
    }
}

TEST_F(ThemeDescriptionTest, WritesAnotherTitleSoThatItComesBack) {
    const std::string utf8 = "[info]\ncodepage=65001\ntitle=a\n[Titles]\n1033=a\n";
    EXPECT_EQ(Titled(utf8, "Łódź"), "[info]\ncodepage=65001\ntitle=Łódź\n[Titles]\n1033=Łódź\n");
    EXPECT_EQ(Titled("[info]\r\na=b\r\n\r\n[c]\r\n", "Küste"),
              "[info]\r\na=b\r\ntitle=K\xFCste\r\n\r\n[c]\r\n[Titles]\r\n1033=K\xFCste\r\n");
    EXPECT_EQ(utf8_, "[info]\r\na=b\r\ntitle=Küste\r\n\r\n[c]\r\n[Titles]\r\n1033=Küste\r\n");
    // The code page lacks a letter, or its bytes would read as UTF-8.
    for (const std::string title : {"Łódź", "Ã¼"})
        EXPECT_EQ(Titled("[info]\ncodepage=1252\ntitle=a\n", title),
                  "[info]\ncodepage=65001\ntitle=" + title + "\n[Titles]\n1033=" + title + "\n");
}

}  // namespace
}  // namespace morpho
