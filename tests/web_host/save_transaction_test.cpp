#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <functional>
#include <thread>

#include "linux/disk_file_system.h"
#include "linux/disk_path.h"
#include "support/temporary_folder.h"
#include "web_host/disk_application.h"
#include "web_host/dying_disk.h"

namespace morpho {
namespace {

namespace fs = std::filesystem;

std::string Page(const std::string& theme) {
    return "<meta name='Microsoft Theme' content='" + theme + " 1011, default'>" +
           "<img src='_themes/" + theme + "/a.gif'>";
}

// A web with the theme "old", and a user who has "new" and another "old".
class SaveTransactionTest : public testing::Test {
  protected:
    SaveTransactionTest() { StartAfresh(); }

    void StartAfresh() {
        for (const char* const folder : {"web", "user", "saves", "all", "cache"})
            fs::remove_all(folder_ / folder);
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
    std::string Path(const std::string& name) const { return ToWindowsPath(folder_ / name); }
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
    void FailAtEveryChange(const std::string& name, bool dies);
    // Runs this in a process of its own that ends without cleaning up.
    static void Dies(const std::function<void()>& work) {
        const pid_t child = ::fork();
        if (child == 0) {
            try {
                work();
            } catch (const RunTimeError&) {
                // A disk that has died.
            }
            ::_exit(0);
        }
        ::waitpid(child, nullptr, 0);
    }
    std::vector<std::string> Repairs() { return Opened()->Session()->Repairs(); }

    TemporaryFolder folder_;
    DyingDisk disk_;
    DiskFileSystem files_;
};

// A failed save has changed nothing at all; one that died is repaired by the next start. Pages are
// replaced one by one: a page that fails is told, and the others have their theme.
void SaveTransactionTest::FailAtEveryChange(const std::string& name, bool dies) {
    StartAfresh();
    const Tree before = Everything();
    Save(*Opened(), name);
    const Tree after = Everything();
    bool failed = true;
    for (int changes = 0; failed; ++changes) {
        SCOPED_TRACE(name + (dies ? " dies" : " fails") + " at change " + std::to_string(changes));
        ASSERT_LT(changes, 200);
        StartAfresh();
        auto host = Opened();
        dies ? disk_.DieAfter(changes) : disk_.FailOnceAfter(changes);
        bool saved = true;
        try {
            Save(*host, name);
        } catch (const RunTimeError&) {
            saved = false;
        }
        const bool told = saved && !host->Session()->Reports().Sentences().empty();
        host.reset();
        failed = disk_.IsDead();
        disk_.Revive();
        if (dies) Repairs();
        const Tree now = Everything();
        EXPECT_TRUE(told || now == (saved ? after : before) || (dies && now == after));
        Save(*Opened(), name);
        EXPECT_EQ(Everything(), after);
        EXPECT_EQ(folder_.FilesIn("saves"), Tree());
    }
}

TEST_F(SaveTransactionTest, ADiskThatDiesAtAnyMomentLeavesTheWebBeforeOrAfterTheSave) {
    for (const char* const name : {"new", "old"})
        FailAtEveryChange(name, true);
}

TEST_F(SaveTransactionTest, AnyChangeThatFailsOnceIsToldAndLeavesNothing) {
    for (const char* const name : {"new", "old"})
        FailAtEveryChange(name, false);
}

TEST_F(SaveTransactionTest, WhatAKilledProgramLeftIsRepairedByAnotherOneOnAnyPathToTheWeb) {
    Save(*Opened(), "old");
    const Tree after = Everything();
    const auto kill = [this] {
        Dies([this] {
            const auto host = Opened();
            disk_.DieAfter(24);
            Save(*host, "old");
        });
    };
    StartAfresh();
    kill();
    EXPECT_NE(Everything(), after);
    fs::create_directory_symlink("web", folder_ / "same");
    DiskApplication(disk_, files_, Path("cache")).Open(Path("same"), {}, Stores());
    EXPECT_EQ(Everything(), after);
    StartAfresh();
    // This one opened the web before.
    const auto host = Opened();
    kill();
    EXPECT_NE(Everything(), after);
    host->BeginSave("new", "old").reset();
    EXPECT_EQ(Everything(), after);
}

TEST_F(SaveTransactionTest, TheRecordOfASaveSpeaksOnlyOnceItsProgramIsDead) {
    auto saved = Opened();
    Save(*saved, "old");
    EXPECT_EQ(Repairs(), std::vector<std::string>());
    saved.reset();
    EXPECT_EQ(Opened()->Session()->CompletedTheme(), "");
    Dies([this] {
        auto* const host = Opened().release();
        Save(*host, "old");
    });
    EXPECT_EQ(Opened()->Session()->CompletedTheme(), "old");
    EXPECT_EQ(Repairs(), std::vector<std::string>());
}

TEST_F(SaveTransactionTest, ASaveThatEndsWithoutCommitLeavesNothing) {
    const Tree before = Everything();
    const auto host = Opened();
    {
        const auto save = host->BeginSave("new", "old");
        host->ActiveWeb()->LocateFolder("_themes")->AddFolder("new")->AddFile(
            ToWindowsPath(folder_.Write("x/new.inf", "[info]")), true);
        EXPECT_TRUE(host->ActiveWeb()->LocateFolder("_themes/NEW"));
        files_.WriteFile(Path("user/new/new.inf"), "changed");
    }
    EXPECT_EQ(Everything(), before);
    EXPECT_THROW(host->ActiveWeb()->ApplyTheme("none"), RunTimeError);
    EXPECT_EQ(Everything(), before);
}

TEST_F(SaveTransactionTest, OneProgramAtATimeSaves) {
    const auto first = Opened();
    DiskApplication second(disk_, files_, Path("other cache"));
    second.Open(Path("web"), {}, {Path("user"), Path("all of second"), Path("saves of second")});
    auto save = first->BeginSave("new", "old");
    const Tree during = Everything();
    try {
        second.BeginSave("other", "old");
        ADD_FAILURE() << "the web is locked";
    } catch (const RunTimeError& error) {
        EXPECT_NE(std::string(error.what()).find(std::to_string(::getpid())), std::string::npos);
    }
    EXPECT_THROW(second.ActiveWeb()->ApplyTheme("new"), RunTimeError);
    EXPECT_EQ(Everything(), during);
    save.reset();
    second.ActiveWeb()->ApplyTheme("new");
    EXPECT_EQ(folder_.Read("web/index.htm"), Page("new"));
}

TEST_F(SaveTransactionTest, WhatAWebSaysOfSavesIsToldAndLeftAlone) {
    for (const char* const text : {"making old\n", "applying new\n"}) {
        folder_.Write("web/_themes/.morpho-change.tmp", text);
        const Tree before = Everything();
        EXPECT_EQ(Repairs().size(), 1U);
        EXPECT_EQ(Everything(), before);
    }
    const fs::path outside = folder_.Write("outside", "kept");
    const fs::path lock = folder_ / "web/_themes/.morpho-lock.tmp";
    const std::function<void()> plants[] = {
        [&] { fs::create_symlink(outside, lock); }, [&] { fs::create_hard_link(outside, lock); },
        [&] { fs::create_directory(lock); }, [&] { ::mkfifo(lock.c_str(), 0600); }};
    const Tree before = Everything();
    for (const auto& plant : plants) {
        plant();
        EXPECT_THROW(Opened()->BeginSave("new", "old"), RunTimeError);
        EXPECT_EQ(folder_.Read("outside"), "kept");
        fs::remove(lock);
        EXPECT_EQ(Everything(), before);
    }
}

TEST_F(SaveTransactionTest, AJournalSpeaksForItsOwnWebAndMachineOnly) {
    const auto host = Opened();
    disk_.DieAfter(12);
    EXPECT_THROW(Save(*host, "old"), RunTimeError);
    disk_.Revive();
    const std::string journal = "saves/" + disk_.Machine() + ".journal";
    // The web has been copied; what stands in its place is another folder.
    fs::rename(folder_ / "web", folder_ / "moved");
    fs::copy(folder_ / "moved", folder_ / "web", fs::copy_options::recursive);
    const Tree web = folder_.Below("web");
    const std::string record = folder_.Read(journal);
    ASSERT_FALSE(record.empty());
    EXPECT_EQ(Repairs().size(), 1U);
    EXPECT_EQ(folder_.Below("web"), web);
    folder_.Write("saves/another machine.journal", record);
    EXPECT_EQ(Repairs().size(), 1U);
    EXPECT_EQ(folder_.Below("web"), web);
    EXPECT_TRUE(folder_.Has("saves/another machine.journal"));
}

TEST_F(SaveTransactionTest, AFolderExchangedForALinkLeadsNothingOutside) {
    for (const std::string name : {"sub", "_themes", "_themes/old"}) {
        StartAfresh();
        fs::remove_all(folder_ / "outside");
        fs::copy(folder_ / ("web/" + name), folder_ / "outside", fs::copy_options::recursive);
        const Tree outside = folder_.Below("outside");
        const std::string inside = folder_ / ("web/" + name);
        const std::string link = folder_ / "link";
        fs::remove_all(link);
        fs::create_directory_symlink(folder_ / "outside", link);
        std::atomic<bool> ends = false;
        std::thread attacker([&] {
            while (!ends)
                ::renameat2(AT_FDCWD, inside.c_str(), AT_FDCWD, link.c_str(), RENAME_EXCHANGE);
        });
        for (int run = 0; run < 20; ++run) {
            try {
                Save(*Opened(), run % 2 == 0 ? "new" : "old");
            } catch (const RunTimeError&) {
                // What was exchanged at a bad moment could not be saved.
            }
        }
        ends = true;
        attacker.join();
        // Its name may lead to either folder by now.
        EXPECT_EQ(folder_.Below("outside"), outside) << name;
    }
}

}  // namespace
}  // namespace morpho
