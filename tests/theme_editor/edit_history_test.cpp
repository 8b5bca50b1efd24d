#include <algorithm>
#include <random>
#include <set>
#include <sstream>

#include "theme_editor/theme_world.h"

namespace morpho::test {
namespace {

// The pictures of the theme; two elements share the first one.
const Lines kFiles{"banner.gif",  "button.gif", "bullet.gif",
                   "nbullet.gif", "line.jpg",   "back.JPEG"};

bool IsFile(const std::string& word) {
    return std::find(kFiles.begin(), kFiles.end(), word) != kFiles.end();
}

// A picture without what says nothing about its colours: neutral passes and the quality.
std::string ColoursIn(std::string bytes) {
    for (const std::string_view silent : {" q60", "|h0 s1 b1"}) {
        for (auto at = bytes.find(silent); at != bytes.npos; at = bytes.find(silent, at))
            bytes.erase(at, silent.size());
    }
    return bytes;
}

// What the window should do with the words below, as plain as can be.
struct PlainHistory {
    using Selected = std::set<std::string>;
    using Steps = std::vector<std::pair<Selected, int>>;  // what each recolours, and the hue
    Selected selected;
    int hue = 0;      // where the thumb stands
    int settled = 0;  // where it stood when it was let go
    Steps undo, redo;
    bool pending = false;
    bool mayUndo = false;

    void Do(const std::string& word) {
        if (word == "all") return Select({kFiles.begin(), kFiles.end()});
        if (word == "none") return Select({});
        if (IsFile(word)) return Select(With(word));
        if (word == "apply") return Apply();
        if (word == "undo") return mayUndo ? Move(undo, redo) : void();
        if (word == "redo") return redo.empty() ? void() : Move(redo, undo);
        if (word == "reset") return Reset();
        hue = std::stoi(word.substr(word.front() == '~'));
        if (word.front() != '~' && hue != std::exchange(settled, hue)) Process();
    }
    void Reset() {
        *this = {};
        selected = {kFiles.begin(), kFiles.end()};
    }
    void Select(const Selected& now) {
        if (now != std::exchange(selected, now) && hue != 0) Commit();
    }
    Selected With(const std::string& file) const {
        Selected more = selected;
        more.insert(file);
        return more;
    }
    void Apply() {
        if (hue != 0 && Process()) Commit();
    }
    bool Process() {
        if (selected.empty()) {
            hue = settled = 0;
            return false;
        }
        if (!std::exchange(pending, true)) undo.emplace_back();
        undo.back() = {selected, hue};
        return true;
    }
    void Commit() {
        redo.clear();
        EndStep();
    }
    void Move(Steps& from, Steps& to) {
        to.push_back(from.back());
        from.pop_back();
        selected = to.back().second == 0 ? Selected() : to.back().first;
        EndStep();
    }
    void EndStep() {
        hue = settled = 0;
        pending = false;
        mayUndo = !undo.empty();
    }
    std::string Colours(const std::string& file) const {
        std::string colours = "blends/" + file;
        for (const auto& [files, stepHue] : undo) {
            if (stepHue != 0 && files.contains(file))
                colours += "|h" + std::to_string(stepHue) + " s1 b1";
        }
        return colours;
    }
};

class EditHistoryTest : public OpenThemeWindow {
  protected:
    EditHistoryTest() { tickDontShow = true; }

    // What a person does: the name of a button presses it, a file ticks its element, "~40" holds
    // the hue's thumb there, "40" lets go of it there.
    void Do(const std::string& word) {
        const std::map<std::string, CommandButton*> buttons{
            {"all", &window->cmdSelectAll}, {"none", &window->cmdSelectNone},
            {"apply", &window->cmdApply},   {"undo", &window->cmdUndo},
            {"redo", &window->cmdRedo},     {"reset", &window->cmdReset}};
        if (const auto button = buttons.find(word); button != buttons.end()) {
            button->second->UserClick();
        } else if (IsFile(word)) {
            window->lstImageNames.UserCheck(window->lstGifNames.FindExact(word), true);
        } else if (word.front() == '~') {
            window->sldHue.UserScroll(std::stoi(word.substr(1)));
        } else {
            window->sldHue.UserSettle(std::stoi(word));
        }
    }
    std::string Colours(const std::string& file) const {
        return ColoursIn(world.files.Bytes(kWorkRoot + "blends\\" + file));
    }
    // The colours of two pictures after these words in a new window.
    std::pair<std::string, std::string> After(const std::string& words) {
        Open();
        std::istringstream stream("none " + words);
        for (std::string word; stream >> word;)
            Do(word == "A" ? "button.gif" : word == "B" ? "bullet.gif" : word);
        return {Colours("button.gif"), Colours("bullet.gif")};
    }
};

TEST_F(EditHistoryTest, UndoAndRedoLeadToWhatTheSurvivingStepsAloneGive) {
    const std::pair<const char*, const char*> cases[] = {
        {"A 10 apply 20 30 apply", "A 10 apply 30 apply"},
        {"A 10 apply 20 undo 30 apply", "A 10 apply 30 apply"},
        {"A 10 apply none B 20 undo 30 apply", "A 10 apply none B 30 apply"},
        {"A 10 apply 20 undo redo 30 apply", "A 10 apply 20 apply 30 apply"},
        {"A 10 apply none B 20 undo redo none A 30", "A 10 apply none B 20 apply none A 30"},
        {"A 10 apply 20 apply undo 30 redo 40", "A 10 apply 30 apply 20 apply 40"},
        {"A 10 apply none B 20 apply undo none A 30 redo 40",
         "A 10 apply 30 apply none B 20 apply 40"},
        {"A 10 apply 20 apply undo 30 undo redo redo", "A 10 apply 30 apply 20 apply"},
        {"A 10 apply none B 20 apply none A ~50 undo", "A 10 apply"},
        {"A 10 apply none B 20 apply none A undo ~50 redo", "A 10 apply none B 20 apply"},
        {"A 20 ~0 none B 30 apply", "B 30 apply"},
    };
    for (const auto& [words, surviving] : cases)
        EXPECT_EQ(After(words), After(surviving)) << words;
}

TEST_F(EditHistoryTest, RandomEditsLeadToWhatAPlainHistorySays) {
    Lines words{"reset", "none", "all", "~0", "~10", "~20", "0", "10", "20", "30"};
    words.insert(words.end(), kFiles.begin(), kFiles.end());
    for (const char* const button : {"apply", "undo", "redo"})
        words.insert(words.end(), 3, button);
    std::mt19937 random(20031);  // the same edits in every run
    for (int walk = 0; walk < 2000; ++walk) {
        Forget();
        window->cmdReset.UserClick();
        PlainHistory plain;
        plain.Do("reset");
        std::string done;
        for (int edit = 0; edit <= walk % 20; ++edit) {
            const std::string& word = words[random() % words.size()];
            done += " " + word;
            Do(word);
            plain.Do(word);
            ASSERT_EQ(window->sldHue.Value(), plain.hue) << done;
            ASSERT_EQ(window->cmdUndo.Enabled(), plain.mayUndo) << done;
            ASSERT_EQ(window->cmdRedo.Enabled(), !plain.redo.empty()) << done;
            for (const std::string& file : kFiles) {
                const int row = window->lstGifNames.FindExact(file);
                ASSERT_EQ(window->lstImageNames.Selected(row), plain.selected.contains(file))
                    << done;
                ASSERT_EQ(Colours(file), plain.Colours(file)) << done;
            }
        }
    }
}

// A theme with all 38 elements, each with a picture of its own.
class LongHistory : public testing::Test, protected ThemeWorld {
  protected:
    using Step = std::pair<std::set<std::size_t>, int>;  // the elements, and the hue

    LongHistory() {
        Pictures pictures;
        for (const CatalogueElement& element : kCatalogue)
            pictures.emplace_back(element.key, "p" + std::to_string(pictures.size()) + ".gif");
        world.application.web->themeOfWeb = "wide";
        PutTheme("wide", "Wide", pictures);
        Open();
    }
    void Take(const Step& step) {
        window->cmdSelectNone.UserClick();
        for (const std::size_t element : step.first)
            window->lstImageNames.UserCheck(RowOf(element), true);
        window->sldHue.UserSettle(step.second);
        window->cmdApply.UserClick();
        Forget();
    }
    int RowOf(std::size_t element) const {
        return window->lstGifNames.FindExact("p" + std::to_string(element) + ".gif");
    }
    // That the pictures are what the first `count` steps make of the originals.
    void ExpectStepsDone(const std::vector<Step>& steps, std::size_t count) const {
        for (std::size_t element = 0; element < kCatalogue.size(); ++element) {
            const std::string file = "p" + std::to_string(element) + ".gif";
            std::string expected = "wide/" + file;
            for (std::size_t i = 0; i < count; ++i) {
                if (steps[i].first.contains(element))
                    expected += "|h" + std::to_string(steps[i].second) + " s1 b1";
            }
            ASSERT_EQ(ColoursIn(world.files.Bytes(kWorkRoot + "wide\\" + file)), expected)
                << count << " steps";
        }
    }
};

TEST_F(LongHistory, LeadsDownToTheOriginalsAndUpAgainThroughTheSamePictures) {
    std::mt19937 random(38);
    std::vector<Step> steps(300);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        steps[i].second = 1 + static_cast<int>(i % 100);
        steps[i].first.insert(random() % kCatalogue.size());
        Take(steps[i]);
        if ((i + 1) % 10 == 0) ExpectStepsDone(steps, i + 1);
    }
    for (std::size_t left = steps.size(); left-- > 0; Forget()) {
        window->cmdUndo.UserClick();
        if (left % 10 == 0) ExpectStepsDone(steps, left);
    }
    EXPECT_FALSE(window->cmdUndo.Enabled());
    for (std::size_t done = 1; done <= steps.size(); ++done, Forget()) {
        window->cmdRedo.UserClick();
        if (done % 10 == 0) ExpectStepsDone(steps, done);
    }
    EXPECT_FALSE(window->cmdRedo.Enabled());
}

TEST(EditHistory, RefusesMoreThan32767StepsAndLosesNoneOfThem) {
    EditHistory history;
    history.PushUndoStep();
    for (int step = 1; step <= 32767; ++step) {
        history.PushUndoStep();
        history.Undo();
    }
    EXPECT_THROW(history.Undo(), RunTimeError);
    EXPECT_EQ(history.UndoDepth(), 1);
    EXPECT_EQ(history.RedoDepth(), 32767);
    EXPECT_ANY_THROW(history.SetUndoRecord(41, {}));
}

}  // namespace
}  // namespace morpho::test
