#include "linux/disk_path.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"
#include "text/utf8.h"

namespace morpho {
namespace {

void ExpectDisk(const std::string& windows, const std::string& disk) {
    EXPECT_EQ(ToDiskPath(windows), disk) << windows;
}

TEST(DiskPath, MapsTheRootAndWhatIsBelow) {
    for (const char* const disk : {"/", "/home/ann/My Web", "/Größe"})
        ExpectDisk(ToWindowsPath(disk), disk);
    EXPECT_EQ(ToWindowsPath("/home/Größe"), "Z:\\home\\Größe");
    ExpectDisk("z:\\a\\\\b\\", "/a/b");
    ExpectDisk("Z:/a/b", "/a/b");
    ExpectDisk("Z:", "/");
    ExpectDisk("Z:\\a\\.\\b\\..\\c", "/a/c");
    ExpectDisk("Z:\\..\\..\\a", "/a");
}

TEST(DiskPath, KnowsNoOtherDrive) {
    for (const std::string_view path :
         {"", "C:\\a", "\\a", "a\\b", "\\\\server\\a", "Z:a", "/a", "ZZ:\\a"})
        EXPECT_FALSE(ToDiskPath(path)) << path;
    EXPECT_FALSE(ToDiskPath(std::string_view("Z:\\a\0b", 6)));
}

TEST(DiskPath, BringsBackNamesThatWindowsCouldNotHold) {
    for (const std::string name : {"caf\xE9", "a\\b", "\xEF\x9F\xA9", "\xFF\xC3", "\xC3\xA9"}) {
        EXPECT_TRUE(IsUtf8(NameFromDisk(name)));
        EXPECT_EQ(NameFromDisk(name).find('\\'), std::string::npos);
        EXPECT_EQ(NameToDisk(NameFromDisk(name)), name);
    }
}

TEST(DiskPath, FindsExistingNamesWithoutRegardToCase) {
    const TemporaryFolder folder;
    for (const char* const name : {"Images/Blatt_Ö.GIF", "Both/name", "Both/NAME"})
        folder.Write(name, "x");
    const auto expectFound = [&](const std::string& asked, const std::string& found) {
        EXPECT_EQ(FindOnDisk(ToWindowsPath(folder / asked)), folder / found);
    };
    expectFound("images/blatt_ö.gif", "Images/Blatt_Ö.GIF");
    expectFound("Both/name", "Both/name");
    expectFound("both/Name", "Both/NAME");
    expectFound("IMAGES/New.gif", "Images/New.gif");
    expectFound("Nowhere/images", "Nowhere/images");
}

}  // namespace
}  // namespace morpho
