#include "theme_editor/save_world.h"
#include "theme_editor/theme_package.h"

namespace morpho::test {
namespace {

struct SavePackage : testing::Test {
    FakePlatform p;
    std::string elm = "C:\\themes\\coast.elm";

    SavePackage() {
        p.files.PutFile("C:\\work\\a.gif", "picture a");
        p.files.PutFile("C:\\work\\b.gif", "");
        p.files.PutFile("C:\\secret.txt", "secret");
    }
    // Rebuilding from this source changes nothing, and the refusal says this.
    void ExpectRefused(const std::string& source, const std::string& why) {
        p.files.PutFile(elm, source);
        try {
            RebuildThemePackage(p.platform, elm, elm, "C:\\work");
            ADD_FAILURE() << "taken: " << source;
        } catch (const RunTimeError& error) {
            EXPECT_THAT(error.what(), testing::HasSubstr(why));
        }
        EXPECT_EQ(p.files.Bytes(elm), source);
    }
    void ExpectUnreadable(const std::string& bytes, const std::string& why) {
        try {
            ReadThemePackage(p.codePage, bytes);
            ADD_FAILURE() << "read: " << bytes;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::kInvalidFileFormat);
            EXPECT_THAT(error.what(), testing::HasSubstr(why)) << bytes;
        }
    }
};

TEST_F(SavePackage, WritesBackByteForByteWhatItReads) {
    const std::string bytes =
        Package({{"a.gif", std::string("\0\n<==MS-Theme==>\r\n", 18)}, {"caf\xE9,1.css", ""}});
    const ThemePackage package = ReadThemePackage(p.codePage, bytes);
    ASSERT_EQ(package.members.size(), 2U);
    EXPECT_EQ(package.members[1].name, "caf\xC3\xA9,1.css");
    EXPECT_EQ(FormatThemePackage(p.codePage, package), bytes);
}

TEST_F(SavePackage, TakesThePresentFilesOfTheSourcesListAndLeavesNoTail) {
    p.files.PutFile(elm, Package({{"b.gif", std::string(500, 'x')}, {"A.gif", "old"}}));
    RebuildThemePackage(p.platform, elm, elm, "C:\\work");
    EXPECT_EQ(p.files.Bytes(elm), Package({{"b.gif", ""}, {"A.gif", "picture a"}}));

    p.files.PutFile(elm, "head\r\n 1 \r\na.gif\n<==MS-Theme==>whatever");
    RebuildThemePackage(p.platform, elm, "C:\\new.elm", "C:\\work");
    EXPECT_EQ(p.files.Bytes("C:\\new.elm"), "head\r\n 1 \r\na.gif,9\n<==MS-Theme==>picture a");
}

TEST_F(SavePackage, AThemesOwnDescriptionTakesTheNewThemesName) {
    p.files.PutFile("C:\\work\\bay.inf", "[info]");
    p.files.PutFile(elm, Package({{"Coast.inf", "old"}}));
    RebuildThemePackage(p.platform, elm, "C:\\themes\\bay.elm", "C:\\work");
    EXPECT_EQ(p.files.Bytes("C:\\themes\\bay.elm"), Package({{"bay.inf", "[info]"}}));
}

TEST_F(SavePackage, RefusesMembersThatAreNoPlainFilesOfTheFolder) {
    for (const char* name :
         {"..\\secret.txt", "../secret.txt", "..", "C:\\secret.txt", "C:secret.txt", "\\secret.txt",
          "sub\\a.gif", "", "a.gif.", "a.gif ", "a*.gif", "NUL", "com1.gif", "a\rb.gif"})
        ExpectRefused(Package({{name, ""}}), "no plain file");
    ExpectRefused(Package({{std::string("a\0.gif", 6), ""}}), "no plain file");
    ExpectRefused(Package({{"a.gif", ""}, {"A.GIF", ""}}), "twice");
    ExpectRefused(Package({{"caf\xE9.gif", ""}, {"CAF\xC9.gif", ""}}), "twice");
    ExpectRefused(Package({{"missing.gif", ""}}), "missing.gif");
}

TEST_F(SavePackage, RefusesACountThatLies) {
    const std::string members = "a.gif,1\nb.gif,1\n<==MS-Theme==>a<==MS-Theme==>b";
    for (const char* count : {"1", "0"})
        ExpectRefused("head\n" + std::string(count) + "\n" + members, "another number");
    for (const char* count : {"", "-1", "two", "2x", "32768", "99999999999999999999"})
        ExpectRefused("head\n" + std::string(count) + "\n" + members, "how many");
    ExpectRefused("head\n3\n" + members, "ends within its index");
    ExpectRefused("head", "ends within its index");
    ExpectRefused("", "ends within its index");
}

TEST_F(SavePackage, DoesNotReadPastALengthThatLies) {
    const auto with = [](const std::string& length) {
        return "head\n1\na.gif" + length + "\n<==MS-Theme==>abc";
    };
    for (const char* length :
         {",4", ",-1", ",18446744073709551615", ",18446744073709551617", ",", ",3x", ""})
        ExpectUnreadable(with(length), "wrong length");
    ExpectUnreadable(with(",2"), "goes on");
    ExpectUnreadable("head\n2\na.gif,1\nb.gif,1\n<==MS-Theme==>a<==MS-Scheme==>b", "no mark");
}

}  // namespace
}  // namespace morpho::test
