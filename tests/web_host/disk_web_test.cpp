#include "web_host/disk_web.h"

#include <gtest/gtest.h>

#include "formats/web_text.h"
#include "platform/run_time_error.h"
#include "support/temporary_folder.h"
#include "support/this_computer.h"
#include "web_host/disk_explorer.h"
#include "web_host/limits.h"
#include "web_host/theme_of_page.h"

namespace morpho {
namespace {

namespace fs = std::filesystem;

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
    std::string Path(const std::string& name) const { return test::WindowsPath(folder_ / name); }
    ThemeStores Stores() const { return {Path("user"), Path("all"), Path("saves")}; }
    // Windows lets only administrators make links, and Wine makes none: then nothing is there,
    // which leads nowhere, either.
    void LinkFolder(const std::string& target, const std::string& link) {
        if (!test::kIsWindows) fs::create_directory_symlink(folder_.At(target), folder_.At(link));
    }
    void LinkFile(const std::string& target, const std::string& link) {
        if (!test::kIsWindows) fs::create_symlink(folder_.At(target), folder_.At(link));
    }
    void Open() { application_.Open(Path("web"), {}, Stores()); }
    std::unique_ptr<Web> OpenedWeb() {
        if (!application_.Session()) Open();
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
    const std::vector<std::string>& Reports() {
        return application_.Session()->Reports().Sentences();
    }
    Tree WebTree() { return folder_.Below("web"); }
    AutomationValue Call(const std::string& method, std::vector<AutomationValue> arguments) {
        OpenedWeb();
        return DiskAutomation(application_)
            .CreateObject("FrontPage.Explorer.6.0")
            ->Call(method, arguments);
    }

    TemporaryFolder folder_;
    test::RealDisk disk_;
    test::RealFileSystem files_;
    DiskApplication application_{disk_, files_, Path("cache")};
    std::string log_;
};

TEST_F(DiskWebTest, ASinglePageGetsAThemeOfTheWebAsItsOwn) {
    folder_.Write("web/_themes/Other/Other.inf", "[info]\ntitle=Other\n");
    folder_.Write("web/_themes/Other/othe1011.css", "");
    folder_.Write("web/sub/bare.htm", "<head></head>");
    Open();
    const auto give = [this](const std::string& page, const std::string& theme) {
        return GiveThemeToPage(*application_.Session(), {"sub", page}, theme);
    };
    EXPECT_EQ(give("bare.htm", "other"), "");
    EXPECT_NE(folder_.Read("web/sub/bare.htm").find("href=\"../_themes/Other/othe1011.css\""),
              std::string::npos);
    fs::remove(folder_ / "web/_themes/Other/othe1011.css");
    folder_.Write("web/_themes/Other/Graph1.css", "");
    folder_.Write("web/_themes/Other/theme.css", "");
    folder_.Write("web/sub/none.htm", Page("none"));
    EXPECT_EQ(give("none.htm", "other"), "");
    for (const char* const sheet : {"Graph1.css", "theme.css"})
        EXPECT_NE(folder_.Read("web/sub/none.htm").find(sheet), std::string::npos);
    EXPECT_NE(give("page.html", "other").find("a.gif"), std::string::npos);
    EXPECT_EQ(folder_.Read("web/sub/page.html"),
              "<meta name='Microsoft Theme' content='Other 1011'><img src='../_themes/old/a.gif'>");
    folder_.Write("web/_themes/old/xold1011-1252.css", "");
    folder_.Write("web/_themes/old/xold0111.css", "");
    folder_.Write("web/_themes/Other/Othe1011-1252.css", "");
    folder_.Write("web/sub/sheet.htm", Page("old",
                                            "<a b=../_themes/old/xold1011-1252.css>"
                                            "<a b=../_themes/old/xold0111.css>"));
    EXPECT_NE(give("sheet.htm", "other").find(": xold0111.css."), std::string::npos);
    EXPECT_EQ(folder_.Read("web/sub/sheet.htm"),
              "<meta name='Microsoft Theme' content='Other 1011'>"
              "<a b=../_themes/Other/Othe1011-1252.css><a b=../_themes/old/xold0111.css>");
    EXPECT_THROW(give("page.html", "none"), RunTimeError);
    const auto save = application_.BeginSave("old", "old");
    EXPECT_THROW(give("page.html", "old"), RunTimeError);
}

TEST_F(DiskWebTest, AWebThatCannotBeOpenedLeavesTheOneBefore) {
    EXPECT_FALSE(application_.ActiveWeb());
    EXPECT_EQ(OpenedWeb()->ThemeAt(0).label, "Old");
    EXPECT_THROW(OpenedWeb()->ThemeAt(1), RunTimeError);
    EXPECT_THROW(application_.Open(Path("none")), RunTimeError);
    EXPECT_EQ(OpenedWeb()->ThemeProperties(kThemeNameProperty), "old");
}

TEST_F(DiskWebTest, AddressesLeadToFoldersAndFilesOfTheWebOnly) {
    folder_.Write("outside/x", "secret");
    folder_.Write("web/sub/a%20 b", "");
    LinkFolder("outside", "web/link");
    LinkFile("outside/x", "web/x");
    const auto web = OpenedWeb();
    const std::string url = web->Url();
    EXPECT_EQ(web->LocateFolder("_THEMES/Old")->Url(), url + "/_themes/old");
    EXPECT_EQ(web->LocateFolder(url + "/%73ub/")->Name(), "sub");
    for (const std::string& bad :
         {url + "/%2e%2e/outside", url + "/sub/../../outside", std::string("..\\outside"),
          url + "/..%2Foutside", url + "2", std::string("link"), std::string("index.htm")}) {
        EXPECT_FALSE(web->LocateFolder(bad)) << bad;
        EXPECT_EQ(Call("vtiGetDocToFile", {bad + "/x", Path("copy")}), kNo) << bad;
    }
    for (const char* const bad : {"x", "sub", "", "sub/a b"})
        EXPECT_EQ(Call("vtiGetDocToFile", {bad, Path("copy")}), kNo) << bad;
    EXPECT_FALSE(folder_.Has("copy"));
    for (const char* const good : {"SUB/a%20 b", "sub\\A%2520%20b"})
        EXPECT_EQ(Call("vtiGetDocToFile", {good, Path("copy")}), kYes) << good;
}

TEST_F(DiskWebTest, FoldersAreCreatedFilledAndDeleted) {
    const auto themes = OpenedWeb()->LocateFolder("_themes");
    const auto added = themes->AddFolder("Neu ü");
    const std::string source = test::WindowsPath(folder_.Write("x/A.GIF", "one"));
    added->AddFile(source, false);
    EXPECT_EQ(folder_.Read("web/_themes/Neu ü/A.GIF"), "one");
    themes->FindFolder("OLD")->AddFile(source, true);
    EXPECT_EQ(folder_.FilesIn("web/_themes/old"),
              (Tree{{"a.gif", "one"}, {"old.inf", "[info]\ntitle=Old\n"}}));
    for (const char* name : {"OLD", "", "..", "a/b", "."})
        EXPECT_THROW(themes->AddFolder(name), RunTimeError) << name;
    LinkFolder("x", "web/_themes/Neu ü/link");
    added->Delete();
    EXPECT_FALSE(folder_.Has("web/_themes/Neu ü"));
    EXPECT_TRUE(folder_.Has("x/A.GIF"));
    EXPECT_THROW(OpenedWeb()->RootFolder()->Delete(), RunTimeError);
}

TEST_F(DiskWebTest, ListsWhatTheHostShowsOfAFolder) {
    for (const char* const name : {"b.tar.GIF", "A", "_vti_cnf/x", "_private/x", "Z/x", ".hidden"})
        folder_.Write(std::string("web/sub/") + name, "");
    LinkFile("web/sub/A", "web/sub/link.gif");
    const auto folder = OpenedWeb()->LocateFolder("sub");
    const auto expectListed = [&folder](const std::string& expected) {
        std::string names;
        for (int i = 0; i < folder->FolderCount(); ++i)
            names += folder->FolderAt(i)->Name() + "/ ";
        for (int i = 0; i < folder->FileCount(); ++i)
            names += folder->FileAt(i).name + "|" + folder->FileAt(i).extension + " ";
        EXPECT_EQ(names, expected);
    };
    expectListed("_private/ Z/ A| b.tar.GIF|GIF page.html|html ");
    folder_.Write("web/_vti_pvt/service.cnf", "vti_showhiddenpages:IX|1\n");
    folder->AddFolder("New");
    expectListed("_private/ _vti_cnf/ New/ Z/ .hidden|hidden A| b.tar.GIF|GIF page.html|html ");
}

TEST_F(DiskWebTest, TheExplorerAnswersForItsOwnReleaseOnly) {
    DiskAutomation automation(application_);
    for (const char* progId : {"FrontPage.Explorer.5.0", "FrontPage.Editor.6.0", ""})
        EXPECT_THROW(automation.CreateObject(progId), RunTimeError) << progId;
    EXPECT_EQ(Call("vtiIsFolderInWeb", {"_themes/old"}), kYes);
    EXPECT_EQ(Call("vtiCreateFolder", {"_themes/new"}), kYes);
    EXPECT_EQ(Call("vtiCreateFolder", {"_themes/NEW"}), kNo);
    EXPECT_TRUE(folder_.Has("web/_themes/new"));
    EXPECT_THROW(Call("vtiCreateFolder", {"../new"}), RunTimeError);
}

// As an editor does it: an insertion brings the selected picture to the front, later releases'
// addresses are unescaped, and the folder of the address takes the file back.
TEST_F(DiskWebTest, ASelectedPictureLeadsToItsFileAndBack) {
    for (const std::string version : {"4.0", "5.0", "6.0"})
        for (const std::string name :
             {"50% grey.gif", "a#b.gif", "ünï.gif", "a b.gif", "100%25.gif", "%41.gif",
              test::kIsWindows ? "&amp;'.gif" : "&amp;'?.gif"}) {
            folder_.Write("a #web/p s/" + name, "picture");
            folder_.Write("a #web/sub/a#b%20.htm",
                          "<img src=x.gif><img src='../p s/" + EncodedPercents(name) + "?q=1#f'>");
            DiskApplication host(disk_, files_, Path("cache"), {version});
            host.Open(Path("a #web"));
            host.SetActivePage([] { return ActivePage{{"sub", "a#b%20.htm"}, 1}; });
            const auto document = host.ActiveDocument();
            const auto undo = document->BeginUndoTransaction("search");
            document->InsertAdjacentHtml("AfterBegin", document->SelectionHtml());
            EXPECT_EQ(document->ImageCount(), 3);
            std::string address = host.MakeAbs(document->Url(), document->ImageAddress(0));
            undo->Abort();
            EXPECT_EQ(document->ImageCount(), 2);
            EXPECT_EQ(document->ImageAddress(1), address);
            if (version != "4.0") address = DecodedPercents(address);
            const std::string folder = host.ActiveWeb()->Url() + "/p s";
            EXPECT_EQ(address, folder + "/" + name);
            const std::vector<AutomationValue> arguments{address, Path(name)};
            const auto explorer =
                DiskAutomation(host).CreateObject("FrontPage.Explorer." + version);
            EXPECT_EQ(explorer->Call("vtiGetDocToFile", arguments), kYes) << address;
            EXPECT_EQ(folder_.Read(name), "picture");
            folder_.Write(name, "edited");
            host.ActiveWeb()->LocateFolder(folder)->AddFile(Path(name), true);
            EXPECT_EQ(folder_.FilesIn("a #web/p s"), (Tree{{name, "edited"}}));
            fs::remove(folder_.At("a #web/p s/" + name));
        }
}

TEST_F(DiskWebTest, ADocumentIsOfThePageAndTheSelectionThatTheHostTells) {
    folder_.Write("web/sub/b.htm", "<base href='../'><img src=/a.gif><img><img src='c.gif'>");
    const std::string web = OpenedWeb()->Url();
    ActivePage active{{"sub", "b.htm"}, {}, "<i>text"};
    application_.SetActivePage([&active] { return active; });
    const auto document = application_.ActiveDocument();
    EXPECT_EQ(document->SelectionHtml(), "<i>text");
    EXPECT_EQ(document->ImageAddress(0), web + "/a.gif");
    EXPECT_EQ(document->ImageAddress(1), "");
    EXPECT_EQ(document->ImageAddress(2), web + "/c.gif");
    EXPECT_THROW(document->ImageAddress(3), RunTimeError);
    active.picture = 3;
    EXPECT_EQ(application_.ActiveDocument()->SelectionHtml(), "");
    active = {{"sub", "P.gif"}, 0};
    EXPECT_EQ(application_.ActiveDocument()->ImageAddress(0), web + "/sub/P.gif");
    active.page = {"none.htm"};
    EXPECT_FALSE(application_.ActiveDocument());
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
    LinkFolder("outside", "web/link");
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
    EXPECT_FALSE(folder_.FilesIn("web/_themes/old").contains("A.GIF"));
    for (const char* name : {"none", "", "..", "../user/old"})
        EXPECT_THROW(Apply(name), RunTimeError) << name;
}

TEST_F(DiskWebTest, HostilePackagesChangeNothing) {
    Open();
    folder_.Write("web/_themes/new/new.inf", "[info]");
    folder_.Write("web/_themes/new/folder/x", "x");
    folder_.Write("target", "secret");
    LinkFile("target", "web/_themes/new/link.gif");
    const Tree before = WebTree();
    const auto expectRefused = [&](const std::string& members) {
        Install("new", members + "<==MS-Theme==>x");
        EXPECT_THROW(Apply("new"), RunTimeError) << members;
        fs::remove_all(folder_ / "user");
        EXPECT_EQ(WebTree(), before) << members;
        EXPECT_EQ(folder_.Read("target"), "secret");
    };
    for (const std::string name : {"../evil", "/evil", "..\\evil", "C:\\evil", "C:evil", "..", ".",
                                   "", "folder", "nul.gif", "a\x01"})
        expectRefused("1\n" + name + ",1\n");
    for (const std::string list :
         {"2\na,1\nA,1\n", "2\na,1\n", "-1\n", "99999\na,1\n", "1\na,18446744073709551617\n",
          "1\na,-1\n", "1\na,2\n", "1\na\n", "0\n", ""})
        expectRefused(list);
    if (test::kIsWindows) return;
    expectRefused("1\nlink.gif,1\n");
    InstallNew();
    fs::rename(folder_ / "web/_themes/new", folder_ / "elsewhere");
    LinkFolder("elsewhere", "web/_themes/new");
    EXPECT_THROW(Apply("new"), RunTimeError);
    EXPECT_FALSE(folder_.Has("elsewhere/a.gif"));
}

TEST_F(DiskWebTest, PagesThatCannotBeWrittenAreReportedAndTheRestGoesOn) {
    InstallNew();
    fs::permissions(folder_ / "web/index.htm", fs::perms(0444));
    Apply("new");
    EXPECT_EQ(folder_.Read("web/sub/page.html").substr(0, 44), Page("new").substr(0, 44));
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("\"index.htm\" keeps its theme"), std::string::npos);
    EXPECT_EQ(log_, Reports()[0] + "\n");
}

TEST_F(DiskWebTest, WhatIsNestedTooDeeplyIsToldAndLeftOut) {
    if (test::kIsWindows) return;  // its paths are not that long
    std::string deep = "web/";
    for (std::size_t depth = 0; depth <= kMaxDepth; ++depth)
        deep += "d/";
    const std::string top = deep.substr(0, deep.size() - 2);
    for (const std::string& folder : {top, deep})
        folder_.Write(folder + "page.htm", Page("old"));
    InstallNew();
    Apply("new");
    EXPECT_NE(folder_.Read(top + "page.htm"), Page("old"));
    EXPECT_EQ(folder_.Read(deep + "page.htm"), Page("old"));
    ASSERT_FALSE(Reports().empty());
    EXPECT_NE(Reports()[0].find("130 deep"), std::string::npos);
}

TEST_F(DiskWebTest, PagesThatNameTheirThemeAreCountedAndChangeInPlaceOfIt) {
    InstallNew();
    const auto own = [](const char* theme) {
        return std::string("<META CONTENT='") + theme + " 011' NAME='microsoft theme'>";
    };
    folder_.Write("web/a.htm", own("Two"));
    folder_.Write("web/sub/b.htm", own("two"));
    folder_.Write("web/c.htm", own("one"));
    Apply("new");
    EXPECT_EQ(Reports(),
              (std::vector<std::string>{"2 pages name the theme \"Two\" themselves and keep it.",
                                        "1 page names the theme \"one\" itself and keeps it."}));
    folder_.Write("web/late.htm", Page("three"));
    Tree expected = WebTree();
    EXPECT_THROW(application_.ApplyInPlaceOf("old", "three"), RunTimeError) << "not the web's";
    EXPECT_EQ(WebTree(), expected);
    application_.ApplyInPlaceOf("old", "TWO");
    expected["a.htm"] = expected["sub/b.htm"] = own("old");
    EXPECT_EQ(WebTree(), expected);
}

TEST_F(DiskWebTest, AddressesOfFilesThatTheNewThemeLacksStayAndAreTold) {
    InstallNew();
    folder_.Write("web/_themes/old/b.gif", "old b");
    folder_.Write("web/index.htm", Page("old", "_<b src=_themes/old/B.GIF><b src=_themes/old/c>"));
    Apply("new");
    EXPECT_EQ(folder_.Read("web/index.htm"),
              Page("new", "_<b src=_themes/old/B.GIF><b src=_themes/new/c>"));
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("the earlier theme: B.GIF."), std::string::npos);
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

}  // namespace
}  // namespace morpho
