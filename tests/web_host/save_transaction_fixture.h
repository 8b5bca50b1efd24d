#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "support/temporary_folder.h"
#include "support/this_computer.h"
#include "web_host/disk_application.h"
#include "web_host/dying_disk.h"

namespace morpho {

inline std::string Page(const std::string& theme) {
    return "<meta name='Microsoft Theme' content='" + theme + " 1011, default'>" +
           "<img src='_themes/" + theme + "/a.gif'>";
}

// A web with the theme "old", and a user who has "new" and another "old".
class SaveTransactionTest : public testing::Test {
  protected:
    SaveTransactionTest() { StartAfresh(); }

    void StartAfresh() {
        for (const char* const folder : {"web", "user", "saves", "all", "cache"})
            std::filesystem::remove_all(folder_ / folder);
        folder_.Write("web/_themes/old/old.inf", "[info]\ntitle=Old\n");
        folder_.Write("web/_themes/old/a.gif", "old a");
        for (const char* const page : {"index.htm", "sub/page.htm"})
            folder_.Write(std::string("web/") + page, Page("old"));
        folder_.Write("web/own.htm", "<meta name='Microsoft Theme' content='old 1011'>");
        for (const std::string name : {"new", "old"}) {
            folder_.Write("user/" + name + "/" + name + ".inf", "[info]\ntitle=Mine\n");
            folder_.Write("user/" + name + "/" + name + ".elm",
                          "h\n2\na.gif,4\nb.gif,1\n<==MS-Theme==>mine<==MS-Theme==>b");
        }
    }
    std::string Path(const std::string& name) const { return test::WindowsPath(folder_ / name); }
    ThemeStores Stores() const { return {Path("user"), Path("all"), Path("saves")}; }
    std::unique_ptr<DiskApplication> Opened() {
        auto host = std::make_unique<DiskApplication>(disk_, files_, Path("cache"));
        host->Open(Path("web"), {}, Stores());
        host->Session()->LetPagesFollow(true);
        return host;
    }
    // The user's theme of this name is saved anew, with other bytes, and given to the web.
    void Save(DiskApplication& host, const std::string& name) {
        const auto save = host.BeginSave(name, "old");
        files_.WriteFile(Path("user/" + name + "/" + name + ".inf"), "[info]\ntitle=Saved\n");
        host.ActiveWeb()->ApplyTheme(name);
        save->Commit();
    }
    Tree Everything() const {
        Tree tree = folder_.Below("web");
        for (const auto& [name, bytes] : folder_.Below("user"))
            tree["user/" + name] = bytes;
        return tree;
    }
    // With what `plant` puts in the place of the web's lock no save begins, and all is left alone.
    void ExpectNoSave(const std::function<void()>& plant) {
        const Tree before = Everything();
        plant();
        EXPECT_THROW(Opened()->BeginSave("new", "old"), RunTimeError);
        EXPECT_EQ(folder_.Read("outside"), "kept");
        std::filesystem::remove(folder_.At("web/_themes/.morpho-lock.tmp"));
        EXPECT_EQ(Everything(), before);
    }
    std::vector<std::string> Repairs() { return Opened()->Session()->Repairs(); }

    TemporaryFolder folder_;
    DyingDisk disk_;
    test::RealFileSystem files_;
};

}  // namespace morpho
