#include "shared/file_profiles.h"

#include "formats/windows_1252_code_page.h"
#include "linux/disk_file_system.h"
#include "linux/disk_path.h"
#include "support/profile_files_contract.h"
#include "support/temporary_folder.h"

namespace morpho::test {
namespace {

class ProfileHost {
  public:
    ProfileFiles& Subject() { return profiles_; }
    std::string File() { return ToWindowsPath(folder_ / "a.inf"); }
    void Put(const std::string& bytes) { folder_.Write("a.inf", bytes); }
    std::string Bytes() { return folder_.Read("a.inf"); }

  private:
    TemporaryFolder folder_;
    DiskFileSystem files_;
    Windows1252CodePage codePage_;
    DiskProfileFiles profiles_{files_, codePage_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Disk, ProfileFilesContract, ProfileHost);

class DiskProfileFilesTest : public testing::Test {
  protected:
    void ExpectValue(const std::string& bytes, const std::string& value) {
        host_.Put(bytes);
        EXPECT_EQ(host_.Subject().ReadString(host_.File(), "info", "title", "none", 10), value)
            << bytes;
    }
    void ExpectWritten(const std::string& value, const std::string& before,
                       const std::string& after) {
        host_.Put(before);
        host_.Subject().WriteString(host_.File(), "info", "title", value);
        EXPECT_EQ(host_.Bytes(), after);
    }

    ProfileHost host_;
};

TEST_F(DiskProfileFilesTest, ReadsTheFirstValue) {
    ExpectValue("[INFO]\nx=1\n Title = \"Sky\" \ntitle=b", "Sky");
    ExpectValue("\xEF\xBB\xBF[info]\rtitle=' a '\r", " a ");
    ExpectValue("[info]\n;title=x\n", "none");
    ExpectValue("[info]\ntitle\n[b]\ntitle=x", "none");
    ExpectValue("[info]\ntitle=12345678901", "1234567890");
}

TEST_F(DiskProfileFilesTest, WritesOneLineAndKeepsTheRest) {
    ExpectWritten("New", "; c\n[info]\nREADONLY=0\nreadonly=1\nTitle =x\njunk\n",
                  "; c\n[info]\nREADONLY=0\nreadonly=1\nTitle =New\njunk\n");
    ExpectWritten("New", "[info]\r\na=b\r\n\r\n[c]\r\n",
                  "[info]\r\na=b\r\ntitle=New\r\n\r\n[c]\r\n");
    ExpectWritten("New", "[info]\na=b", "[info]\na=b\ntitle=New\n");
    ExpectWritten("New", "[c]\nx=y", "[c]\nx=y\n[info]\ntitle=New\n");
    ExpectWritten("New", "\xEF\xBB\xBF[info]\ntitle=\xFF\n", "\xEF\xBB\xBF[info]\ntitle=New\n");
    ExpectWritten("a\r\n[x]", "", "[info]\r\ntitle=a  [x]\r\n");
}

TEST_F(DiskProfileFilesTest, ReplacesASectionAndKeepsItsComments) {
    host_.Put("[titles]\r\n;c\r\n1=a\r\n2=b\r\n\r\n[x]\r\n");
    host_.Subject().WriteSection(host_.File(), "Titles", {{"1033", "Ä"}, {"1031", "x"}});
    EXPECT_EQ(host_.Bytes(), "[titles]\r\n1033=\xC4\r\n1031=x\r\n;c\r\n\r\n[x]\r\n");
}

}  // namespace
}  // namespace morpho::test
