// What a save leaves behind when any single operation on files fails, or when the program dies
// there.

#include "theme_editor/save_world.h"

namespace morpho::test {
namespace {

using Tree = std::map<std::string, std::string>;

enum class Way { kSaveAs, kSaveAsApplied, kSave, kSaveOverOwn };

// Makes the save of a world; returns the world with its window still open.
struct Attempt {
    explicit Attempt(Way saveWay) : way(saveWay) {
        if (way == Way::kSaveOverOwn) {
            world.p.files.DeleteFolder(kGlobalThemes + "coast");
            world.InstallTheme(kUserThemes, "coast", "Coast");
        }
        world.OpenAndRecolour();
    }
    bool IsNew() const { return way == Way::kSaveAs || way == Way::kSaveAsApplied; }
    void Save() {
        world.PersonSavesAs("bay", "The Bay", way == Way::kSaveAsApplied);
        world.p.toolkit.WillAnswer(Answer::kYes);
        (IsNew() ? world.window->cmdSaveAs : world.window->cmdSave).UserClick();
    }
    bool IsInstalled() const { return world.p.files.HasFile(kUserThemes + "bay\\bay.inf"); }

    bool Failed() const {
        const auto& messages = world.p.toolkit.Messages();
        return !messages.empty() && messages.back().text == "Error occured while saving theme.";
    }

    Way way;
    SaveWorld world;
};

Tree TreeAfter(Way way) {
    Attempt attempt(way);
    attempt.Save();
    return attempt.world.Tree();
}

// A description on its way into its folder is no theme's yet.
bool IsWaiting(const std::string& file) {
    return file.ends_with("#.inf");
}

bool IsOfWebsBay(const std::string& file) {
    return file.starts_with("web\\_themes\\bay\\");
}

class FailingSave : public testing::TestWithParam<Way> {
  protected:
    const Tree before_ = Attempt(GetParam()).world.Tree();
    const Tree after_ = TreeAfter(GetParam());
    // A new theme is in the web for a while even if it does not stay there.
    const Tree inTheWeb_ = TreeAfter(Way::kSaveAsApplied);

    bool Holds(const Tree& tree, const std::string& file, const std::string& bytes) const {
        const auto found = tree.find(file);
        return found != tree.end() && found->second == bytes;
    }

    void ExpectWholeFiles(const Attempt& attempt) const {
        const Tree now = attempt.world.Tree();
        for (const auto& [file, bytes] : now) {
            const bool known = Holds(before_, file, bytes) || Holds(after_, file, bytes) ||
                               (IsOfWebsBay(file) && Holds(inTheWeb_, file, bytes));
            EXPECT_TRUE(known || IsWaiting(file)) << file << ": " << bytes;
        }
        for (const auto& [file, bytes] : before_)
            EXPECT_TRUE(now.contains(file)) << file;
        // A description makes a folder a theme, and a theme is complete.
        EXPECT_TRUE(!attempt.IsInstalled() ||
                    attempt.world.p.files.HasFile(kUserThemes + "bay\\bay.elm"));
    }

    // A save that fails, and lives to say so, gives the originals back, which the history needs.
    void ExpectOriginals(const Attempt& attempt) const {
        if (!attempt.Failed()) return;
        for (const auto& [file, bytes] : attempt.world.Tree()) {
            const bool isOriginal = file.find("\\mstheme\\coast\\") != std::string::npos;
            EXPECT_TRUE(!isOriginal || Holds(before_, file, bytes)) << file;
        }
        EXPECT_TRUE(attempt.world.window->cmdUndo.Enabled());
    }

    enum class Web { kAsEver, kMayKeepNewTheme };

    void ExpectAsAfter(const Attempt& attempt, Web web) const {
        Tree now = attempt.world.Tree();
        std::erase_if(now, [](const auto& file) { return IsWaiting(file.first); });
        std::erase_if(now, [&](const auto& file) {
            return web == Web::kMayKeepNewTheme && IsOfWebsBay(file.first) &&
                   !after_.contains(file.first) && Holds(inTheWeb_, file.first, file.second);
        });
        EXPECT_EQ(now, after_);
    }
};

TEST_P(FailingSave, LeavesWholeFilesAndAWindowThatSavesTheNextTime) {
    for (const ErrorNumber error :
         {ErrorNumber::kDiskFull, ErrorNumber::kPermissionDenied, ErrorNumber::kDeviceIo}) {
        for (int nth = 1;; ++nth) {
            SCOPED_TRACE("operation " + std::to_string(nth));
            Attempt attempt(GetParam());
            FakeFileSystem& files = attempt.world.p.files;
            files.FailAt(nth, error);
            attempt.Save();
            if (!files.HasFailed()) {
                EXPECT_GT(nth, 30) << "a save does more than that";
                break;
            }
            files.FailNoMore();
            ExpectWholeFiles(attempt);
            ExpectOriginals(attempt);
            EXPECT_TRUE(attempt.world.IsUsable());
            if (attempt.IsNew() && attempt.IsInstalled()) continue;  // its name is taken now
            attempt.Save();
            ExpectAsAfter(attempt, Web::kAsEver);
            if (HasFailure()) return;
        }
    }
}

TEST_P(FailingSave, ADeadProgramLeavesWholeFilesAndANameThatCanBeSavedAgain) {
    for (int nth = 1;; ++nth) {
        SCOPED_TRACE("operation " + std::to_string(nth));
        Attempt attempt(GetParam());
        SaveWorld& world = attempt.world;
        world.p.files.FailFrom(nth);
        attempt.Save();
        if (!world.p.files.HasFailed()) break;
        world.p.files.FailNoMore();
        ExpectWholeFiles(attempt);
        if (HasFailure()) return;
        if (!attempt.IsNew() || attempt.IsInstalled()) continue;
        world.OpenAndRecolour();
        attempt.Save();
        // What was left of the theme in the web is completed, not taken away.
        ExpectAsAfter(attempt, Web::kMayKeepNewTheme);
        if (HasFailure()) return;
    }
}

std::string NameOf(const testing::TestParamInfo<Way>& info) {
    constexpr const char* kNames[] = {"SaveAs", "SaveAsApplied", "Save", "SaveOverOwn"};
    return kNames[static_cast<int>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(Ways, FailingSave,
                         testing::Values(Way::kSaveAs, Way::kSaveAsApplied, Way::kSave,
                                         Way::kSaveOverOwn),
                         NameOf);

}  // namespace
}  // namespace morpho::test
