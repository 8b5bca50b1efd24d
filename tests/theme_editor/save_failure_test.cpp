// What a save leaves behind when any single operation on files fails, or when the program dies
// there.

#include "theme_editor/theme_world.h"

namespace morpho::test {
namespace {

using Files = std::map<std::string, std::string>;

// A save that a person makes: "SaveAs", "SaveAsApplied", "Save", or "SaveOverOwn" where the user
// has the theme too.
struct Attempt : SaveWorld {
    explicit Attempt(const std::string& way)
        : asNew(way.starts_with("SaveAs")), applies(way == "SaveAsApplied") {
        if (way == "SaveOverOwn") {
            world.files.DeleteFolder(kGlobalThemes + "coast");
            InstallTheme(kUserThemes, "coast", "Coast");
        }
        OpenAndRecolour();
    }
    Attempt& Save() {
        PersonSavesAs("bay", "The Bay", applies);
        world.toolkit.WillAnswer(Answer::kYes);
        (asNew ? window->cmdSaveAs : window->cmdSave).UserClick();
        return *this;
    }
    bool IsInstalled() const { return world.files.HasFile(kUserThemes + "bay\\bay.inf"); }
    bool Failed() const {
        const auto& messages = world.toolkit.Messages();
        return !messages.empty() && messages.back().text == "Error occured while saving theme.";
    }

    const bool asNew;
    const bool applies;
};

bool Holds(const Files& files, const std::string& file, const std::string& bytes) {
    const auto found = files.find(file);
    return found != files.end() && found->second == bytes;
}

class FailingSave : public testing::TestWithParam<std::string> {
  protected:
    // Makes the save with a failure at each of its operations in turn, and goes on with `check`.
    void AtEachOperation(bool programDies, const std::function<void(Attempt&)>& check) const {
        for (int nth = 1; !HasFailure(); ++nth) {
            SCOPED_TRACE("operation " + std::to_string(nth));
            Attempt attempt(GetParam());
            attempt.world.files.FailAt(nth, programDies);
            attempt.Save();
            if (!attempt.world.files.HasFailed()) {
                EXPECT_GT(nth, 30) << "a save does more than that";
                return;
            }
            attempt.world.files.FailNoMore();
            ExpectWholeFiles(attempt);
            check(attempt);
        }
    }

    void ExpectWholeFiles(const Attempt& attempt) const {
        const Files now = attempt.Tree();
        for (const auto& [file, bytes] : now) {
            EXPECT_TRUE(Holds(before_, file, bytes) || Holds(after_, file, bytes) ||
                        IsOfWebsBay(file, bytes) || IsWaiting(file))
                << file << ": " << bytes;
        }
        for (const auto& [file, bytes] : before_)
            EXPECT_TRUE(now.contains(file)) << file;
        // A description makes a folder a theme, and a theme is complete.
        EXPECT_TRUE(!attempt.IsInstalled() ||
                    attempt.world.files.HasFile(kUserThemes + "bay\\bay.elm"));
    }

    // A save that fails, and lives to say so, gives the originals back, which the history needs,
    // and the user's themes, of which pages may need only a new one that is applied.
    void ExpectOriginals(const Attempt& attempt) const {
        if (!attempt.Failed()) return;
        for (const auto& [file, bytes] : attempt.Tree()) {
            const bool isOriginal = file.find("\\mstheme\\coast\\") != std::string::npos;
            const bool isUsers = file.starts_with("ann\\") && (!attempt.applies || IsWaiting(file));
            EXPECT_TRUE(!(isOriginal || isUsers) || Holds(before_, file, bytes)) << file;
        }
        EXPECT_TRUE(attempt.window->cmdUndo.Enabled());
    }

    // As a save leaves it that nothing stops, but that the web may keep what it has of the theme.
    void ExpectAsAfter(const Attempt& attempt, bool webMayKeepTheme) const {
        Files now = attempt.Tree();
        std::erase_if(now, [&](const auto& file) {
            const bool kept = webMayKeepTheme && IsOfWebsBay(file.first, file.second);
            return IsWaiting(file.first) || (kept && !after_.contains(file.first));
        });
        EXPECT_EQ(now, after_);
    }

  private:
    // A description on its way into its folder is no theme's yet.
    static bool IsWaiting(const std::string& file) { return file.ends_with("#.inf"); }
    // A new theme is in the web for a while even if it does not stay there.
    bool IsOfWebsBay(const std::string& file, const std::string& bytes) const {
        return file.starts_with("web\\_themes\\bay\\") && Holds(inTheWeb_, file, bytes);
    }

    const Files before_ = Attempt(GetParam()).Tree();
    const Files after_ = Attempt(GetParam()).Save().Tree();
    const Files inTheWeb_ = Attempt("SaveAsApplied").Save().Tree();
};

TEST_P(FailingSave, LeavesWholeFilesAndAWindowThatSavesTheNextTime) {
    AtEachOperation(false, [&](Attempt& attempt) {
        ExpectOriginals(attempt);
        EXPECT_TRUE(attempt.IsUsable());
        if (attempt.asNew && attempt.IsInstalled()) return;  // its name is taken now
        ExpectAsAfter(attempt.Save(), false);
    });
}

TEST_P(FailingSave, ADeadProgramLeavesWholeFilesAndANameThatCanBeSavedAgain) {
    AtEachOperation(true, [&](Attempt& attempt) {
        if (!attempt.asNew || attempt.IsInstalled()) return;
        attempt.OpenAndRecolour();
        // What was left of the theme in the web is completed, not taken away.
        ExpectAsAfter(attempt.Save(), true);
    });
}

// From the start of the window on. Whatever fails, nobody's theme and no page is damaged, and the
// next window can be worked with.
TEST(FailingSession, LeavesThemesAndPagesWholeAndAStartThatWorks) {
    const auto run = [](SaveWorld& session, int nth, bool programDies) {
        session.world.files.FailAt(nth, programDies);
        try {
            session.OpenAndRecolour();
            session.window->cmdUndo.UserClick();
            session.window->cmdRedo.UserClick();
            session.PersonSavesAs("bay", "The Bay", true);
            if (session.window->cmdSaveAs.IsOperable()) session.window->cmdSaveAs.UserClick();
        } catch (const RunTimeError&) {
            // What the window could not even start with.
        }
        const bool hasFailed = session.world.files.HasFailed();
        session.world.files.FailNoMore();
        return hasFailed;
    };
    const Files before = SaveWorld().Tree();
    SaveWorld undisturbed;
    run(undisturbed, 1 << 20, false);
    const Files after = undisturbed.Tree();
    for (const bool programDies : {false, true}) {
        for (int nth = 1;; ++nth) {
            SCOPED_TRACE((programDies ? "dies at " : "fails at ") + std::to_string(nth));
            SaveWorld session;
            const bool hasFailed = run(session, nth, programDies);
            const Files now = session.Tree();
            for (const auto& [file, bytes] : before)
                EXPECT_TRUE(Holds(now, file, bytes) ||
                            (now.contains(file) && after.contains(file) &&
                             Holds(now, file, after.at(file))))
                    << file;
            if (!hasFailed) {
                EXPECT_EQ(now, after);
                EXPECT_GT(nth, 60) << "a session does more than that";
                break;
            }
            session.OpenAndRecolour();
            EXPECT_TRUE(session.IsUsable());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Ways, FailingSave,
                         testing::Values("SaveAs", "SaveAsApplied", "Save", "SaveOverOwn"),
                         [](const auto& test) { return test.param; });

}  // namespace
}  // namespace morpho::test
