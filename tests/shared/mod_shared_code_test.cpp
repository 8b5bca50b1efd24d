#include "shared/mod_shared_code.h"

#include <gtest/gtest.h>

#include "support/fake_platform.h"

namespace morpho::test {
namespace {

TEST(ModSharedCode, TellsImageFilesByTheirExtension) {
    const std::pair<const char*, int> cases[] = {
        {"photo.JPEG", kJpegFile}, {"a.b.jpg", kJpegFile}, {"http://x/a.gif", kGifFile},
        {"a.Bmp", kBmpFile},       {"a.png", kPngFile},    {"archive.tar.gz", kNoImageFile},
        {"gif", kNoImageFile},     {"a.", kNoImageFile},   {"", kNoImageFile},
        {"a.jpg ", kNoImageFile},  {".gif", kGifFile},     {"a.gif\\b", kNoImageFile}};
    for (const auto& [name, type] : cases)
        EXPECT_EQ(GetImageFileType(name), type) << name;
}

TEST(ModSharedCode, RefusesNamesThatAFileCannotHave) {
    for (const char* name : {"my theme", " blends ", "a.b", "caf\xC3\xA9", "a..b"})
        EXPECT_TRUE(IsValidFileName(name)) << name;
    for (const char* name : {"", "   ", ".hidden", "  .hidden", "a#b", "a\\b", "a/b", "a:b", "a*",
                             "a?", "a<", "a>", "a|", "a\"b"})
        EXPECT_FALSE(IsValidFileName(name)) << name;
}

TEST(ModSharedCode, JoinsPaths) {
    const auto expectJoined = [](const char* base, std::initializer_list<std::string_view> names,
                                 const char* path) { EXPECT_EQ(JoinPath(base, names), path); };
    expectJoined("C:/webs/", {"\\site", "images"}, "C:\\webs\\site\\images");
    expectJoined("C:\\a", {}, "C:\\a");
    expectJoined("C:\\a", {"b/c", "d\\"}, "C:\\a\\b\\c\\d\\");
    expectJoined("C:\\a\\b", {"..", "..", "c"}, "C:\\c");
    expectJoined("C:\\a\\b", {"..c"}, "C:\\ac");  // two dots in front of a name count as well
    expectJoined("a", {"..", "b"}, "a\\..\\b");   // nothing to take away
    expectJoined("C:\\a", {"", "b"}, "C:\\a\\b");

    std::vector<std::string> names{"/x/y", "\\\\z"};
    EXPECT_EQ(JoinPath("C:", names), "C:\\x\\y\\\\z");
    EXPECT_EQ(names, (std::vector<std::string>{"x\\y", "\\z"}));
}

TEST(ModSharedCode, FillsPlaceholdersInOrderAndCutsTexts) {
    EXPECT_EQ(FormatText("Theme \"%1\" %2 %1", {"Blends", "x"}), "Theme \"Blends\" x Blends");
    EXPECT_EQ(FormatText("%1", {"%2", "b"}), "b");
    EXPECT_EQ(FormatText("%1", {"%1"}), "%1");
    EXPECT_EQ(FormatText("%10 %2", {"a"}), "a0 %2");
    const auto expectCut = [](std::string text, bool trimFirst, const char* rest) {
        TrimAtNul(text, trimFirst);
        EXPECT_EQ(text, rest);
    };
    expectCut(std::string(" a \0b ", 6), true, "a ");
    expectCut(std::string(" a \0b ", 6), false, " a ");
    expectCut("  ", true, "");
}

TEST(ModSharedCode, FindsFilesAsADirectoryListingDoes) {
    FakeFileSystem files;
    for (const char* path : {"C:\\w\\Blends.gif", "C:\\w\\caf\xC3\xA9.gif", "C:\\w\\sub\\x.jpg"})
        files.PutFile(path, "");
    files.PutFile("C:\\w\\hidden.txt", "", kHiddenAttribute);
    files.PutFile("C:\\w\\system.txt", "", kSystemAttribute);
    files.PutFolder("C:\\empty");
    for (const char* path :
         {"C:\\w\\", "C:\\w\\blends.GIF", "C:\\w\\*", "C:\\w\\*.*", "C:\\w\\b*s.g?f",
          "C:\\w\\CAF?.gif", "C:\\w\\sub\\*", "C:\\w\\*lends.gif"})
        EXPECT_TRUE(AnyFileMatches(files, path)) << path;
    for (const char* path : {"", "C:\\empty\\", "C:\\w", "C:\\w\\sub", "C:\\w\\*.txt", "C:\\w\\s*",
                             "C:\\w\\hidden.txt", "C:\\w\\blends", "C:\\w\\?.gif", "C:\\w\\*.jpg",
                             "C:\\nowhere\\", "C:\\nowhere\\*", "C:\\w\\blends.gif?"})
        EXPECT_FALSE(AnyFileMatches(files, path)) << path;
    EXPECT_FALSE(FolderExists(files, "C:\\w\\blends.gif"));
    files.FailOn("C:\\w");
    EXPECT_FALSE(AnyFileMatches(files, "C:\\w\\"));
}

}  // namespace
}  // namespace morpho::test
