#include "desktop/disk/disk_profile_files.h"

#include <gtest/gtest.h>

#include "desktop/disk/disk_file_system.h"
#include "desktop/disk/disk_path.h"
#include "desktop/temporary_folder.h"
#include "desktop/text/windows_1252.h"

namespace morpho {
namespace {

class DiskProfileFilesTest : public testing::Test {
  protected:
    void ExpectValue(const std::string& bytes, const std::string& value) {
        folder_.Write("a.inf", bytes);
        EXPECT_EQ(profiles_.ReadString(path_, "info", "title", "none", 10), value) << bytes;
    }
    void ExpectWritten(const std::string& before, const std::string& after) {
        folder_.Write("a.inf", before);
        profiles_.WriteString(path_, "info", "title", "New");
        EXPECT_EQ(folder_.Read("a.inf"), after);
    }
    void ExpectSection(const std::string& before, const std::string& after) {
        folder_.Write("a.inf", before);
        profiles_.WriteSection(path_, "Titles", {{"1033", "Ä"}, {"1031", "x"}});
        EXPECT_EQ(folder_.Read("a.inf"), after);
    }

    TemporaryFolder folder_;
    DiskFileSystem files_;
    Windows1252 codePage_;
    DiskProfileFiles profiles_{files_, codePage_};
    const std::string path_ = ToWindowsPath(folder_ / "a.inf");
};

TEST_F(DiskProfileFilesTest, ReadsTheFirstValue) {
    ExpectValue("[info]\r\ntitle=Blue Sky\r\n", "Blue Sky");
    ExpectValue("[INFO]\nx=1\n Title = \"Sky\" \ntitle=b", "Sky");
    ExpectValue("[a]\ntitle=x\n[info]\ntitle=y\n[info]\ntitle=z\n", "y");
    ExpectValue("\xEF\xBB\xBF[info]\rtitle=' a '\r", " a ");
    ExpectValue("[info]\n;title=x\n", "none");
    ExpectValue("[info]\ntitle\n[b]\ntitle=x", "none");
    ExpectValue("[info]\ntitle=\n", "");
    ExpectValue("[info]\ntitle=Gr\xFC\xDF", "Grüß");
    ExpectValue("[info]\ntitle=12345678901", "1234567890");
    ExpectValue("", "none");
    EXPECT_EQ(profiles_.ReadString(path_ + "x", "info", "title", "none", 10), "none");
}

TEST_F(DiskProfileFilesTest, WritesOneLineAndKeepsTheRest) {
    ExpectWritten("; c\n[info]\nREADONLY=0\nreadonly=1\nTitle =x\njunk\n",
                  "; c\n[info]\nREADONLY=0\nreadonly=1\nTitle =New\njunk\n");
    ExpectWritten("[info]\r\na=b\r\n\r\n[c]\r\n", "[info]\r\na=b\r\ntitle=New\r\n\r\n[c]\r\n");
    ExpectWritten("[info]\na=b", "[info]\na=b\ntitle=New\n");
    ExpectWritten("[c]\nx=y", "[c]\nx=y\n[info]\ntitle=New\n");
    ExpectWritten("\xEF\xBB\xBF[info]\ntitle=\xFF\n", "\xEF\xBB\xBF[info]\ntitle=New\n");
    ExpectWritten("", "[info]\r\ntitle=New\r\n");
}

TEST_F(DiskProfileFilesTest, ReplacesASection) {
    ExpectSection("[titles]\r\n;c\r\n1=a\r\n2=b\r\n\r\n[x]\r\n",
                  "[titles]\r\n1033=\xC4\r\n1031=x\r\n;c\r\n\r\n[x]\r\n");
    ExpectSection("[x]\ny=z\n", "[x]\ny=z\n[Titles]\n1033=\xC4\n1031=x\n");
}

TEST_F(DiskProfileFilesTest, AValueCannotBringInALineOfItsOwn) {
    profiles_.WriteString(path_, "info", "title", "a\r\n[x]");
    EXPECT_EQ(folder_.Read("a.inf"), "[info]\r\ntitle=a  [x]\r\n");
}

}  // namespace
}  // namespace morpho
