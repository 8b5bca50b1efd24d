#include "web_host/save_transaction_fixture.h"

namespace morpho {
namespace {

namespace fs = std::filesystem;

// A failed save has changed nothing at all; one that died is repaired by the next start. Pages are
// replaced one by one: a page that fails is told, and the others have their theme.
class FailingDiskTest : public SaveTransactionTest {
  protected:
    void FailAtEveryChange(const std::string& name, bool dies) {
        StartAfresh();
        const Tree before = Everything();
        Save(*Opened(), name);
        const Tree after = Everything();
        bool failed = true;
        // In Wine a save takes a hundred times as long: not every moment is tried there.
        for (int changes = 0; failed; changes += test::kIsWindows ? 5 : 1) {
            SCOPED_TRACE(name + (dies ? " dies" : " fails") + " at change " +
                         std::to_string(changes));
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
};

TEST_F(FailingDiskTest, ADiskThatDiesAtAnyMomentLeavesTheWebBeforeOrAfterTheSave) {
    for (const char* const name : {"new", "old"})
        FailAtEveryChange(name, true);
}

TEST_F(FailingDiskTest, AnyChangeThatFailsOnceIsToldAndLeavesNothing) {
    for (const char* const name : {"new", "old"})
        FailAtEveryChange(name, false);
}

TEST_F(SaveTransactionTest, ASaveThatEndsWithoutCommitLeavesNothing) {
    const Tree before = Everything();
    const auto host = Opened();
    {
        const auto save = host->BeginSave("new", "old");
        host->ActiveWeb()->LocateFolder("_themes")->AddFolder("new")->AddFile(
            test::WindowsPath(folder_.Write("x/new.inf", "[info]")), true);
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
        EXPECT_NE(std::string(error.what()).find(std::to_string(disk_.Program())),
                  std::string::npos);
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
    const fs::path lock = folder_.At("web/_themes/.morpho-lock.tmp");
    ExpectNoSave([&] { fs::create_directory(lock); });
    fs::create_hard_link(outside, lock);
    try {
        Opened()->BeginSave("new", "old");
    } catch (const RunTimeError&) {
        // Windows has taken the name out of the web instead.
        EXPECT_FALSE(test::kIsWindows);
    }
    EXPECT_EQ(folder_.Read("outside"), "kept");
}

TEST_F(SaveTransactionTest, AJournalSpeaksForItsOwnWebAndMachineOnly) {
    auto host = Opened();
    disk_.DieAfter(12);
    EXPECT_THROW(Save(*host, "old"), RunTimeError);
    host.reset();
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

}  // namespace
}  // namespace morpho
