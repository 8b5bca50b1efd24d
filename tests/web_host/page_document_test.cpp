#include <gtest/gtest.h>

#include "formats/web_text.h"
#include "linux/disk_file_system.h"
#include "linux/disk_path.h"
#include "linux/linux_disk.h"
#include "platform/run_time_error.h"
#include "support/temporary_folder.h"
#include "text/ignoring_case.h"
#include "text/parsed_number.h"
#include "web_host/disk_application.h"
#include "web_host/disk_explorer.h"

namespace morpho {
namespace {

// What the editors do to addresses of later releases: each escape is resolved wherever it stands.
std::string Unescaped(std::string address) {
    for (auto hit = address.find('%'); hit != address.npos; hit = address.find('%', hit + 1)) {
        const std::string digits = address.substr(hit + 1, 2);
        const auto code = ParsedNumber<unsigned char>(digits, 16);
        if (!code || digits.size() < 2) continue;
        const std::string character(1, static_cast<char>(*code));
        address = ReplacedIgnoringAsciiCase(address, "%" + digits, character);
    }
    return address;
}

class PageDocumentTest : public testing::TestWithParam<const char*> {
  protected:
    // A document of a page with this text; its `picture` is selected.
    std::unique_ptr<PageDocument> Page(const std::string& text, std::optional<int> picture = {}) {
        folder_.Write("a #web/sub/a#b%20.htm", text);
        application_.Open(ToWindowsPath(folder_ / "a #web"));
        return Active({{"sub", "a#b%20.htm"}, picture, "<i>text"});
    }
    std::unique_ptr<PageDocument> Active(const ActivePage& page) {
        application_.SetActivePage([page] { return std::optional(page); });
        return application_.ActiveDocument();
    }
    bool IsEscaped() const { return application_.Version()[0] != '4'; }
    AutomationValue Fetch(const std::string& address) {
        const std::vector<AutomationValue> arguments{address, ToWindowsPath(folder_ / "copy")};
        return DiskAutomation(application_)
            .CreateObject("FrontPage.Explorer." + application_.Version())
            ->Call("vtiGetDocToFile", arguments);
    }

    TemporaryFolder folder_;
    LinuxDisk disk_;
    DiskFileSystem files_;
    DiskApplication application_{disk_, files_, ToWindowsPath(folder_ / "cache"),
                                 HostOptions{GetParam()}};
};

INSTANTIATE_TEST_SUITE_P(Releases, PageDocumentTest, testing::Values("4.0", "5.0", "6.0"));

// As an editor does it: an insertion brings the selected picture to the front, later releases'
// addresses are unescaped, and the folder of the address takes the file back.
TEST_P(PageDocumentTest, LeadsFromTheSelectedPictureToItsFileAndBack) {
    for (const std::string name : {"50% grey.gif", "a#b.gif", "ünï.gif", "a b.gif", "100%25.gif",
                                   "%41.gif", "a&amp;'?.gif"}) {
        folder_.Write("a #web/p s/" + name, "picture");
        const auto document =
            Page("<img src=x.gif><img src='../p s/" + EncodedPercents(name) + "?q=1#f'>", 1);
        const auto undo = document->BeginUndoTransaction("search");
        document->InsertAdjacentHtml("AfterBegin", document->SelectionHtml());
        EXPECT_EQ(document->ImageCount(), 3);
        std::string address = application_.MakeAbs(document->Url(), document->ImageAddress(0));
        undo->Abort();
        EXPECT_EQ(document->ImageCount(), 2);
        EXPECT_TRUE(document->ImageAddress(0).ends_with("/sub/x.gif"));
        if (IsEscaped()) address = Unescaped(address);
        const std::string folder = application_.ActiveWeb()->Url() + "/p s";
        EXPECT_EQ(address, folder + "/" + name);
        EXPECT_EQ(Fetch(address), AutomationValue(1)) << address;
        EXPECT_EQ(folder_.Read("copy"), "picture");
        const std::string edited = ToWindowsPath(folder_.Write("edited/" + name, "edited"));
        application_.ActiveWeb()->LocateFolder(folder)->AddFile(edited, true);
        EXPECT_EQ(folder_.Read("a #web/p s/" + name), "edited");
        EXPECT_EQ(folder_.FilesIn("a #web/p s").size(), 1U);
        std::filesystem::remove(folder_ / ("a #web/p s/" + name));
    }
}

TEST_P(PageDocumentTest, IsOfThePageAndTheSelectionThatTheHostTells) {
    const auto document = Page("<base href='../'><img src=/a.gif><img><img src='c.gif'>");
    const std::string web = application_.ActiveWeb()->Url();
    const std::string root = IsEscaped() ? "/a %23web" : "/a #web";
    EXPECT_EQ(document->SelectionHtml(), "<i>text");
    EXPECT_TRUE(document->Url().ends_with(
        root + (IsEscaped() ? "/sub/a%23b%2520.htm" : "/sub/a#b%20.htm")));
    EXPECT_TRUE(document->ImageAddress(0).ends_with(root + "/a.gif")) << document->ImageAddress(0);
    EXPECT_EQ(document->ImageAddress(1), "");
    EXPECT_TRUE(document->ImageAddress(2).ends_with(root + "/c.gif")) << document->ImageAddress(2);
    EXPECT_THROW(document->ImageAddress(3), RunTimeError);
    EXPECT_THROW(document->InsertAdjacentHtml("AfterEnd", ""), RunTimeError);
    EXPECT_EQ(Active({{"sub", "a#b%20.htm"}, 3})->SelectionHtml(), "");
    EXPECT_TRUE(Active({{"sub", "P.gif"}, 0})->ImageAddress(0).ends_with(root + "/sub/P.gif"));
    EXPECT_FALSE(Active({{"none.htm"}}));
    EXPECT_FALSE(Active({{"..", "x.htm"}}));
}

TEST_P(PageDocumentTest, FetchesNothingButFilesOfTheWeb) {
    folder_.Write("copy", "as before");
    folder_.Write("secret.gif", "secret");
    Page("");
    std::filesystem::create_symlink(folder_ / "secret.gif", folder_ / "a #web/link.gif");
    std::filesystem::create_directory_symlink(folder_ / "", folder_ / "a #web/up");
    const std::string web = application_.ActiveWeb()->Url();
    for (const std::string& url :
         {std::string(web), web + "/sub", web + "/none", web + "/link.gif", web + "/up/secret.gif",
          web + "/sub/%2e%2e/%2E%2E/secret.gif", web + "/..%2Fsecret.gif", web + "2/secret.gif",
          web + "/../secret.gif", std::string("file:///etc/passwd"), std::string("")})
        EXPECT_EQ(Fetch(url), AutomationValue(0)) << url;
    EXPECT_EQ(folder_.Read("copy"), "as before");
    EXPECT_EQ(Fetch("SUB/a%23b%2520.htm"), AutomationValue(1)) << "escaped, any letter case";
}

}  // namespace
}  // namespace morpho
