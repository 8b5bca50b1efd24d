#include "windows_toolkit/windows_screen.h"

namespace morpho::test {
namespace {

class KeysTest : public testing::Test {
  protected:
    void Show(const std::function<void()>& script) {
        screen_.Show(form_, [&] {
            form_.events.clear();
            script();
        });
    }
    void ExpectEvents(const Control& focused, WPARAM key, bool alt, const Events& events) {
        form_.events.clear();
        ::SetFocus(screen_.WindowOf(focused));
        screen_.PressKey(key, alt);
        EXPECT_EQ(form_.events, events) << focused.Name() << " " << key;
    }
    WindowsScreen screen_;
    Gallery form_{screen_.TheToolkit()};
};

TEST_F(KeysTest, ReachWhatTheyStandFor) {
    Show([&] {
        ExpectEvents(form_.txtQuality, VK_RETURN, false, {"cmdApply_Click"});
        ExpectEvents(form_.cmdUndo, VK_RETURN, false, {"cmdUndo_Click"});
        ExpectEvents(form_.cmdUndo, VK_SPACE, false, {"cmdUndo_Click"});
        ExpectEvents(form_.lblLink, VK_RETURN, false, {"lblLink_Click"});
        ExpectEvents(form_.cmdUndo, 'A', true, {"cmdApply_Click"});
        ExpectEvents(form_.cmdUndo, 'D', true, {});  // disabled
        ExpectEvents(form_.cmdUndo, 'Y', true, {"chkApply_Click"});
        const Control* const led[] = {&form_.sldHue, &form_.txtQuality, &form_.cmbTheme};
        for (int i = 0; i < 3; ++i) {
            ExpectEvents(form_.cmdUndo, static_cast<WPARAM>("HQT"[i]), true, {});
            EXPECT_EQ(form_.Focused(), led[i]);
        }
    });
}

TEST_F(KeysTest, TabGoesInOrderOfDeclarationAroundWhatIsOutOfReach) {
    form_.optReport.SetValueQuietly(true);
    Show([&] {
        ::SetFocus(screen_.WindowOf(form_.chkApply));
        const Control* const stops[] = {
            &form_.optReport, &form_.tvFolders,  &form_.lvFiles,   &form_.hsPan,    &form_.vsPan,
            &form_.sldHue,    &form_.txtQuality, &form_.vsQuality, &form_.txtGuide, &form_.lblLink,
            &form_.cmdApply,  &form_.cmdUndo,    &form_.cmdClose,  &form_.cmbTheme};
        for (const Control* const stop : stops) {
            screen_.PressKey(VK_TAB);
            EXPECT_EQ(form_.Focused(), stop) << stop->Name();
        }
    });
}

TEST_F(KeysTest, AreNotLostWithTheControlThatHasTheFocus) {
    Show([&] {
        ::SetFocus(screen_.WindowOf(form_.cmdUndo));
        form_.cmdUndo.SetEnabled(false);
        screen_.Pause();
        EXPECT_EQ(GetFocus(), screen_.WindowOf(form_.cmdClose));
        // A handler that disables all and enables it again gives the focus back.
        form_.answer = [&] {
            form_.answer = {};
            form_.fraMenu.SetEnabled(false);
            form_.fraMenu.SetEnabled(true);
        };
        ExpectEvents(form_.cmdApply, VK_SPACE, false, {"cmdApply_Click"});
        EXPECT_EQ(GetFocus(), screen_.WindowOf(form_.cmdApply));
    });
}

TEST_F(KeysTest, ACharacterInTwoHalvesIsTypedAsOne) {
    class Box : public Form {
      public:
        explicit Box(Toolkit& toolkit) : Form(toolkit, {"frmBox", "Box", {3000, 1500}}) {}
        std::vector<char32_t> keys;
        TextBox text{*this,
                     {"text", {60, 60, 2000, 315}},
                     TextBox::Kind::kSingleLine,
                     [this](char32_t& key) { keys.push_back(key); }};
    } box(screen_.TheToolkit());
    screen_.Show(box, [&] {
        for (const wchar_t half : L"\U0001F3A8x")
            if (half != 0) PostMessageW(screen_.WindowOf(box.text), WM_CHAR, half, 1);
        screen_.Pause();
        EXPECT_EQ(box.text.Text(), "\U0001F3A8x");
        EXPECT_EQ(box.keys, (std::vector<char32_t>{0x1F3A8, 'x'}));
    });
}

TEST_F(KeysTest, EscapePressesTheCancelButtonAndTheWindowMayStay) {
    form_.refuseClosing = true;
    Show([&] {
        ExpectEvents(form_.txtQuality, VK_ESCAPE, false, {"Form_QueryUnload"});
        EXPECT_TRUE(IsWindowVisible(screen_.Window()));
        PostMessageW(screen_.Window(), WM_CLOSE, 0, 0);
        screen_.Pause();
        EXPECT_EQ(form_.events.back(), "Form_QueryUnload by user");
        EXPECT_TRUE(IsWindowVisible(screen_.Window()));
    });
}

}  // namespace
}  // namespace morpho::test
