#include "web_host/disk_web.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>

#include "linux/disk_path.h"
#include "platform/run_time_error.h"
#include "support/temporary_folder.h"
#include "web_host/disk_explorer.h"

namespace morpho {
namespace {

namespace fs = std::filesystem;

// Fails from a given change on, like a disk that has died.
class DyingWriter : public WebWriter {
  public:
    explicit DyingWriter(int changesLeft) : changesLeft_(changesLeft) {}
    void ReplaceFile(const std::string& path, std::string_view bytes) override {
        Count();
        WebWriter::ReplaceFile(path, bytes);
    }
    void AddFile(const std::string& path, std::string_view bytes) override {
        Count();
        WebWriter::AddFile(path, bytes);
    }
    void Flush() override {
        Count();
        WebWriter::Flush();
    }
    void RemoveFile(const std::string& path) override {
        Count();
        WebWriter::RemoveFile(path);
    }
    void MakeFolder(const std::string& path) override {
        Count();
        WebWriter::MakeFolder(path);
    }
    bool HasFailed() const { return changesLeft_ < 0; }

  private:
    void Count() {
        if (--changesLeft_ < 0) throw RunTimeError(ErrorNumber::kDeviceIo, "The disk has died.");
    }
    std::atomic<int> changesLeft_;
};

const AutomationValue kYes = 1;
const AutomationValue kNo = 0;

std::string Page(const std::string& theme, const std::string& rest = "") {
    return "<meta name='Microsoft Theme' content='" + theme + " 1011, default'>" + rest;
}

class DiskWebTest : public testing::Test {
  protected:
    DiskWebTest() {
        folder_.Write("web/_themes/old/old.inf", "[info]\ntitle=Old\n");
        folder_.Write("web/_themes/old/a.gif", "old a");
        folder_.Write("web/index.htm", Page("old", "<img src='_themes/old/a.gif'>"));
        folder_.Write("web/sub/page.html", Page("old", "<img src='../_themes/old/a.gif'>"));
        application_.SetLog([this](std::string_view line) { log_.append(line).append("\n"); });
    }
    void Open() { application_.Open(folder_ / "web", {}, {folder_ / "user", folder_ / "all"}); }
    std::unique_ptr<Web> OpenedWeb() {
        if (!application_.Opened()) Open();
        return application_.ActiveWeb();
    }
    // The user gets a theme whose package is of these members.
    void Install(const std::string& name, const std::string& members) {
        folder_.Write("user/" + name + "/" + name + ".inf", "[info]\ntitle=New\n");
        folder_.Write("user/" + name + "/" + name + ".elm", "h\n" + members);
    }
    void InstallNew() {
        Install("new",
                "2\na.gif,5\nm.css,19\n<==MS-Theme==>new a<==MS-Theme==>b{url(../old/a.gif)");
    }
    void Apply(const std::string& theme) { OpenedWeb()->ApplyTheme(theme); }
    Tree WebTree() { return folder_.Below("web"); }
    AutomationValue Call(const std::string& method, std::vector<AutomationValue> arguments) {
        OpenedWeb();
        return DiskAutomation(application_)
            .CreateObject("FrontPage.Explorer.6.0")
            ->Call(method, arguments);
    }

    TemporaryFolder folder_;
    DiskApplication application_{folder_ / "cache"};
    std::string log_;
};

TEST_F(DiskWebTest, AWebThatCannotBeOpenedLeavesTheOneBefore) {
    EXPECT_FALSE(application_.ActiveWeb());
    EXPECT_EQ(OpenedWeb()->ThemeAt(0).label, "Old");
    EXPECT_THROW(OpenedWeb()->ThemeAt(1), RunTimeError);
    EXPECT_THROW(application_.Open(folder_ / "none"), RunTimeError);
    EXPECT_EQ(OpenedWeb()->ThemeProperties(kThemeNameProperty), "old");
}

TEST_F(DiskWebTest, FoldersAreFoundWithoutRegardToCaseAndOnlyInsideTheWeb) {
    folder_.Write("outside/x", "");
    fs::create_directory_symlink(folder_ / "outside", folder_ / "web/link");
    const auto web = OpenedWeb();
    EXPECT_EQ(web->LocateFolder("_THEMES/Old")->Url(), web->Url() + "/_themes/old");
    EXPECT_EQ(web->LocateFolder(web->Url() + "/sub/")->Name(), "sub");
    for (const char* url : {"none", "..", "sub/../../outside", "link", "index.htm", "/etc\\.."})
        EXPECT_FALSE(web->LocateFolder(url)) << url;
}

TEST_F(DiskWebTest, FoldersAreCreatedFilledAndDeleted) {
    const auto themes = OpenedWeb()->LocateFolder("_themes");
    const auto added = themes->AddFolder("Neu ü");
    const std::string source = ToWindowsPath(folder_.Write("x/A.GIF", "one"));
    added->AddFile(source, false);
    EXPECT_EQ(folder_.Read("web/_themes/Neu ü/A.GIF"), "one");
    folder_.Write("x/A.GIF", "two");
    EXPECT_THROW(added->AddFile(source, false), RunTimeError);
    themes->FindFolder("OLD")->AddFile(source, true);
    EXPECT_EQ(folder_.FilesIn("web/_themes/old"),
              (Tree{{"a.gif", "two"}, {"old.inf", "[info]\ntitle=Old\n"}}));
    for (const char* name : {"OLD", "", "..", "a/b", "."})
        EXPECT_THROW(themes->AddFolder(name), RunTimeError) << name;
    fs::create_directory_symlink(folder_ / "x", folder_ / "web/_themes/Neu ü/link");
    added->Delete();
    EXPECT_FALSE(folder_.Has("web/_themes/Neu ü"));
    EXPECT_TRUE(folder_.Has("x/A.GIF"));
    EXPECT_THROW(added->AddFile(source, true), RunTimeError);
    EXPECT_THROW(OpenedWeb()->RootFolder()->Delete(), RunTimeError);
}

TEST_F(DiskWebTest, PropertiesAreWhatTheWebsNotesSay) {
    EXPECT_EQ(OpenedWeb()->Property("VTI_Title"), std::nullopt);
    folder_.Write("web/_vti_pvt/service.cnf", "vti_encoding:SR|utf8-nl\r\nvti_title:SR|A|B\r\n");
    EXPECT_EQ(OpenedWeb()->Property("VTI_Title"), "A|B");
}

TEST_F(DiskWebTest, TheExplorerAnswersForItsOwnReleaseOnly) {
    DiskAutomation automation(application_);
    for (const char* progId : {"FrontPage.Explorer.5.0", "FrontPage.Editor.6.0", ""})
        EXPECT_THROW(automation.CreateObject(progId), RunTimeError) << progId;
    EXPECT_EQ(Call("vtiIsFolderInWeb", {"_themes/old"}), kYes);
    EXPECT_EQ(Call("vtiCreateFolder", {"_themes/new"}), kYes);
    EXPECT_EQ(Call("vtiCreateFolder", {"_themes/NEW"}), kNo);
    EXPECT_TRUE(folder_.Has("web/_themes/new"));
    const std::string target = ToWindowsPath(folder_ / "copy");
    EXPECT_EQ(Call("vtiGetDocToFile", {"_themes/old/A.gif", target}), kYes);
    EXPECT_EQ(folder_.Read("copy"), "old a");
    EXPECT_EQ(Call("vtiGetDocToFile", {"../cache", target}), kNo);
    EXPECT_THROW(Call("vtiCreateFolder", {"../new"}), RunTimeError);
}

TEST_F(DiskWebTest, AThemeIsMadeFresh) {
    const std::string url = OpenedWeb()->Url();
    folder_.Write("web/_themes/old/a.gif", "newer");
    folder_.Write("web/_themes/new/new.inf", "[info]\ntitle=New\n");
    OpenedWeb()->Refresh();
    EXPECT_EQ(OpenedWeb()->ThemeCount(), 2);
    const std::string unpacked = "cache/FrontPageTempDir/mstheme/";
    EXPECT_TRUE(folder_.Has(unpacked + "new/new.inf"));
    EXPECT_EQ(folder_.Read(unpacked + "old/a.gif"), "old a");
    EXPECT_EQ(Call("vtiMakeThemeFresh", {"OLD", url, true, true}), kYes);
    EXPECT_EQ(folder_.Read(unpacked + "old/a.gif"), "newer");
    EXPECT_EQ(Call("vtiMakeThemeFresh", {"none", url, true, true}), kNo);
    EXPECT_EQ(Call("vtiMakeThemeFresh", {"..", url, true, true}), kNo);
    EXPECT_EQ(Call("vtiMakeThemeFresh", {"old", "http://other", true, true}), kNo);
}

TEST_F(DiskWebTest, AThemeIsAppliedToTheWebAndThePagesThatTakeIt) {
    InstallNew();
    folder_.Write("web/_themes/old/_vti_cnf/a.gif", "notes");
    folder_.Write("web/own.htm", "<meta name='Microsoft Theme' content='old 011'>");
    folder_.Write("web/_borders/top.htm", Page("old"));
    folder_.Write("web/_vti_cnf/index.htm", Page("old"));
    folder_.Write("web/subweb/_vti_pvt/service.cnf", "");
    folder_.Write("web/subweb/index.htm", Page("old"));
    folder_.Write("outside/page.htm", Page("old"));
    fs::create_directory_symlink(folder_ / "outside", folder_ / "web/link");
    Tree expected = WebTree();
    expected["_themes/new/"];
    expected["index.htm"] = Page("new", "<img src='_themes/new/a.gif'>");
    expected["sub/page.html"] = Page("new", "<img src='../_themes/new/a.gif'>");
    expected["_borders/top.htm"] = Page("new");
    expected["_themes/new/a.gif"] = "new a";
    expected["_themes/new/m.css"] = "b{url(a.gif)";
    expected["_themes/new/new.inf"] = "[info]\ntitle=New\n";
    Apply("new");
    EXPECT_EQ(WebTree(), expected);
    EXPECT_EQ(folder_.Read("outside/page.htm"), Page("old"));
    EXPECT_EQ(OpenedWeb()->ThemeProperties(kThemeNameProperty), "new");
    EXPECT_EQ(OpenedWeb()->ThemeCount(), 2);
    Apply("NEW");
    EXPECT_EQ(WebTree(), expected);
}

TEST_F(DiskWebTest, TheUsersOwnThemeComesFirstAndTheWebsOwnLast) {
    Apply("old");
    EXPECT_EQ(folder_.Read("web/_themes/old/a.gif"), "old a");
    folder_.Write("web/_themes/old/a.gif", "spoilt");
    Apply("old");
    EXPECT_EQ(folder_.Read("web/_themes/old/a.gif"), "old a");
    Install("OLD", "1\nA.GIF,3\n<==MS-Theme==>mine");
    EXPECT_THROW(Apply("old"), RunTimeError) << "one byte too many";
    Install("OLD", "1\nA.GIF,4\n<==MS-Theme==>mine");
    Apply("old");
    EXPECT_EQ(folder_.Read("web/_themes/old/a.gif"), "mine");
    EXPECT_FALSE(folder_.Has("web/_themes/old/A.GIF"));
    for (const char* name : {"none", "", "..", "../user/old"})
        EXPECT_THROW(Apply(name), RunTimeError) << name;
}

TEST_F(DiskWebTest, HostilePackagesChangeNothing) {
    Open();
    folder_.Write("web/_themes/new/new.inf", "[info]");
    folder_.Write("web/_themes/new/folder/x", "x");
    folder_.Write("target", "secret");
    fs::create_symlink(folder_ / "target", folder_ / "web/_themes/new/link.gif");
    const Tree before = folder_.Below("");
    const auto expectRefused = [&](const std::string& members) {
        Install("new", members + "<==MS-Theme==>x");
        EXPECT_THROW(Apply("new"), RunTimeError) << members;
        fs::remove_all(folder_ / "user");
        EXPECT_EQ(folder_.Below(""), before) << members;
    };
    for (const std::string name : {"../evil", "/evil", "..\\evil", "C:\\evil", "C:evil", "..", ".",
                                   "", "folder", "link.gif", "nul.gif", "a\x01"})
        expectRefused("1\n" + name + ",1\n");
    for (const std::string list :
         {"2\na,1\nA,1\n", "2\na,1\n", "-1\n", "99999\na,1\n", "1\na,18446744073709551617\n",
          "1\na,-1\n", "1\na,2\n", "1\na\n", "0\n", ""})
        expectRefused(list);
    InstallNew();
    fs::rename(folder_ / "web/_themes/new", folder_ / "elsewhere");
    fs::create_directory_symlink(folder_ / "elsewhere", folder_ / "web/_themes/new");
    EXPECT_THROW(Apply("new"), RunTimeError);
    EXPECT_FALSE(folder_.Has("elsewhere/a.gif"));
}

TEST_F(DiskWebTest, WhatAKilledProgramLeftIsRemovedAndNeverTakenForATheme) {
    InstallNew();
    const std::string dead = ".morpho-2147483646-7.tmp";
    const std::string ours = ".morpho-" + std::to_string(::getpid()) + "-7.tmp";
    for (const std::string folder : {"web/", "web/sub/", "web/_themes/new/", "web/_themes/old/"}) {
        folder_.Write(folder + dead, "half");
        folder_.Write(folder + ours, "in use");
    }
    Apply("new");
    for (const auto& [name, bytes] : WebTree())
        EXPECT_NE(bytes, "half") << name;
    EXPECT_EQ(folder_.Read("web/sub/" + ours), "in use");
    EXPECT_FALSE(folder_.Has("cache/FrontPageTempDir/mstheme/old/" + dead));
}

TEST_F(DiskWebTest, PagesThatCannotBeWrittenAreReportedAndTheRestGoesOn) {
    InstallNew();
    fs::permissions(folder_ / "web/index.htm", fs::perms(0444));
    Apply("new");
    EXPECT_EQ(folder_.Read("web/sub/page.html").substr(0, 44), Page("new").substr(0, 44));
    ASSERT_EQ(application_.Reports().size(), 1U);
    EXPECT_NE(application_.Reports()[0].find("\"index.htm\" keeps its theme"), std::string::npos);
    EXPECT_EQ(log_, application_.Reports()[0] + "\n");
}

TEST_F(DiskWebTest, AddressesOfFilesThatTheNewThemeLacksStayAndAreTold) {
    InstallNew();
    folder_.Write("web/_themes/old/b.gif", "old b");
    folder_.Write("web/index.htm", Page("old", "_<b src=_themes/old/B.GIF><b src=_themes/old/c>"));
    Apply("new");
    EXPECT_EQ(folder_.Read("web/index.htm"),
              Page("new", "_<b src=_themes/old/B.GIF><b src=_themes/new/c>"));
    ASSERT_EQ(application_.Reports().size(), 1U);
    EXPECT_NE(application_.Reports()[0].find("the earlier theme: B.GIF."), std::string::npos);
}

TEST_F(DiskWebTest, WhatADeadProgramWasDoingIsPutRightAtTheNextStart) {
    const std::string note = "web/_themes/.morpho-change.tmp";
    const auto openAfter = [&](const std::string& text) {
        folder_.Write(note, text);
        Open();
        EXPECT_FALSE(folder_.Has(note));
        return application_.Opened()->putRight.size();
    };
    InstallNew();
    folder_.Write("web/_themes/half/a.gif", "half");
    for (const char* text : {"", "making half", "making ../_themes/half\n", "taking half\n"})
        EXPECT_EQ(openAfter(text), 0U) << text;
    EXPECT_TRUE(folder_.Has("web/_themes/half/a.gif"));
    EXPECT_EQ(openAfter("making half\n"), 1U);
    EXPECT_FALSE(folder_.Has("web/_themes/half"));
    const Tree before = WebTree();
    EXPECT_EQ(openAfter("making OLD\n"), 0U);
    EXPECT_EQ(WebTree(), before) << "pages use it";
    folder_.Write(note, "applying new\n");
    const Tree unfinished = WebTree();
    application_.Open(folder_ / "web");
    EXPECT_EQ(application_.Opened()->putRight.size(), 1U) << "told, where nothing may be saved";
    EXPECT_EQ(WebTree(), unfinished);
    EXPECT_EQ(openAfter("applying new\n"), 1U);
    EXPECT_EQ(folder_.Read("web/index.htm"), Page("new", "<img src='_themes/new/a.gif'>"));
}

TEST_F(DiskWebTest, OneProgramAtATimeChangesTheThemes) {
    InstallNew();
    const auto added = OpenedWeb()->LocateFolder("_themes")->AddFolder("mine");
    DiskApplication other(folder_ / "other cache");
    other.Open(folder_ / "web", {}, {folder_ / "user", folder_ / "all of other"});
    EXPECT_TRUE(folder_.Has("web/_themes/mine"));
    const Tree before = WebTree();
    const auto web = other.ActiveWeb();
    EXPECT_THROW(web->ApplyTheme("new"), RunTimeError);
    EXPECT_THROW(web->LocateFolder("_themes")->AddFolder("other"), RunTimeError);
    EXPECT_EQ(WebTree(), before);
    added->Delete();
    web->ApplyTheme("new");
    EXPECT_TRUE(folder_.Has("web/_themes/new"));
}

TEST_F(DiskWebTest, BrokenThemeAddressesAreLogged) {
    folder_.Write("web/sub/broken.htm",
                  "<img src='../_themes/OLD/b c.gif'><img src='none.gif'>"
                  "<img src='/_themes/old/A.GIF'><i src=_themes/x/y.gif z>");
    OpenedWeb()->RecalcHyperlinks();
    EXPECT_EQ(log_,
              "Broken hyperlink in \"sub/broken.htm\": _themes/OLD/b c.gif\n"
              "Broken hyperlink in \"sub/broken.htm\": _themes/x/y.gif\n");
}

TEST_F(DiskWebTest, ADiskThatDiesLeavesWholeFilesAndTheNextTimeCompletesThem) {
    InstallNew();
    fs::copy(folder_ / "web", folder_ / "before", fs::copy_options::recursive);
    const Tree before = WebTree();
    Apply("new");
    const Tree after = WebTree();
    bool failed = true;
    for (int changes = 0; failed; ++changes) {
        fs::remove_all(folder_ / "web");
        fs::copy(folder_ / "before", folder_ / "web", fs::copy_options::recursive);
        const auto writer = std::make_shared<DyingWriter>(changes);
        application_.SetWriter(writer);
        Open();
        try {
            Apply("new");
        } catch (const RunTimeError&) {
        }
        failed = writer->HasFailed();
        for (const auto& [name, bytes] : WebTree()) {
            const bool isBefore = before.contains(name) && bytes == before.at(name);
            EXPECT_TRUE(isBefore || bytes == after.at(name)) << name << " after " << changes;
        }
        application_.SetWriter(std::make_shared<WebWriter>());
        Open();
        Apply("new");
        EXPECT_EQ(WebTree(), after) << changes;
        ASSERT_LT(changes, 20);
    }
}

}  // namespace
}  // namespace morpho
