#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <functional>
#include <thread>

#include "web_host/save_transaction_fixture.h"

namespace morpho {
namespace {

namespace fs = std::filesystem;

// Runs this in a process of its own that ends without cleaning up.
void Dies(const std::function<void()>& work) {
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

TEST_F(SaveTransactionTest, ALockThatIsNoFileOfTheWebIsLeftAlone) {
    const std::string outside = folder_.Write("outside", "kept");
    const std::string lock = folder_ / "web/_themes/.morpho-lock.tmp";
    ExpectNoSave([&] { fs::create_symlink(outside, lock); });
    ExpectNoSave([&] { fs::create_hard_link(outside, lock); });
    ExpectNoSave([&] { ::mkfifo(lock.c_str(), 0600); });
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
