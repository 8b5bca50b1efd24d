#include <gmock/gmock.h>

#include "colorizer/recolorer.h"
#include "windows/edited_web.h"
#include "windows/loaded_host.h"
#include "windows/person.h"
// After <windows.h>.
#include <commctrl.h>

namespace morpho::test {
namespace {

using testing::IsEmpty;

// The add-ins, connected, whose windows a person works.
class EditorWindows : public testing::Test {
  protected:
    EditorWindows() {
        for (const std::wstring& progId : loaded_.AddIns())
            addIns_.push_back(std::make_unique<ConnectedAddIn>(loaded_.Host(), progId));
    }
    // Returns when the window is closed.
    void Click(const std::string& tag) { loaded_.Command(tag)->Click(); }
    void Disconnect() {
        addIns_.clear();
        EXPECT_TRUE(loaded_.CanUnload());
        EXPECT_EQ(LiveObjects(), objects_);
    }

    LoadedHost loaded_;
    const long objects_ = LiveObjects();
    std::vector<std::unique_ptr<ConnectedAddIn>> addIns_;
};

void FillInDusk(HWND dialog) {
    const std::vector<HWND> texts = ControlsOf(dialog, WC_EDITW);
    ASSERT_EQ(texts.size(), 2U);
    SetWindowTextW(texts[0], L"dusk");
    SetWindowTextW(texts[1], L"Dusk");
    const HWND apply = FindControl(dialog, WC_BUTTONW, L"Apply to entire web");
    if (SendMessageW(apply, BM_GETCHECK, 0, 0) != BST_CHECKED) SendMessageW(apply, BM_CLICK, 0, 0);
}

TEST_F(EditorWindows, ThemeMorphoLeavesTheSameBytesAsTheDesktopProgram) {
    Person person;
    person.AlwaysPress(L"OK")
        .At(L"Select All",
            [](HWND window) {
                const HWND themes = ControlsOf(window, WC_COMBOBOXW).at(0);
                const auto label = reinterpret_cast<LPARAM>(L"Orrery");
                const auto orrery = SendMessageW(themes, CB_FINDSTRINGEXACT, 0, label);
                Pick(themes, static_cast<int>(1 - orrery));
                Pick(themes, static_cast<int>(orrery));
            })
        .Press(L"Select All")
        .At(L"Apply",
            [](HWND window) {
                const HWND elements = ControlsOf(window, WC_LISTVIEWW).at(0);
                SetTick(elements, 0, false);
                SetTick(elements, 0, true);
                const std::vector<HWND> sliders = ControlsOf(window, TRACKBAR_CLASSW);
                Slide(sliders.at(2), kHue);
                Slide(sliders.at(0), kBrightness);
            })
        .Press(L"Apply")
        .Press(L"Save As...")
        .At(L"Cancel", FillInDusk)
        .Press(L"Save")
        .Press(L"Close");
    Click("ThemeMorpho");
    Disconnect();
    const Tree edited = EditedTree(loaded_.World().Web(), loaded_.World().UserThemes());
    EXPECT_THAT(Differences(edited, EditedByDesktopProgram()), IsEmpty());
}

TEST_F(EditorWindows, ImageMorphoRecoloursTheSelectedPicture) {
    const Tree before = loaded_.World().Web();
    for (const bool asControl : {false, true}) {
        loaded_.Host().selectsAsControl = asControl;
        loaded_.World().Select({"index.htm"}, 2);
        Tree expected = loaded_.World().Web();
        std::string& picture = expected.at("images/dome.jpg");
        const auto recolored = colorizer::Recolored(
            std::span(reinterpret_cast<const std::uint8_t*>(picture.data()), picture.size()),
            {.brightness = 1, .saturation = 1, .hueDegrees = kHue}, 75);
        picture.assign(recolored.begin(), recolored.end());
        Person person;
        person
            .At(L"Save",
                [](HWND window) { Slide(ControlsOf(window, TRACKBAR_CLASSW).at(2), kHue); })
            .Press(L"Save")
            .Press(L"Yes");
        Click(asControl ? "ImageMorphoToolbar" : "ImageMorpho");
        EXPECT_THAT(Differences(loaded_.World().Web(), expected), IsEmpty());
        EXPECT_NE(expected, before);
    }
    Disconnect();
}

// The host may pump messages in each call: a person can click again before the window stands.
TEST_F(EditorWindows, ASecondClickWhileTheEditorOpensDoesNothing) {
    Person person;
    person.AlwaysPress(L"OK").Press(L"Close");
    int clicks = 0;
    int pumping = 0;
    std::size_t windows = 0;
    loaded_.Host().beforeCall = [&](const std::string& member) {
        if (member != "Web.Themes" && member != "PageWindows.Add") return;
        if (pumping > 0) return;
        ++pumping;
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        if (++clicks < 4) Click("ThemeMorpho");
        windows = std::max(windows, ShownWindows().size());
        --pumping;
    };
    Click("ThemeMorpho");
    EXPECT_GE(clicks, 2);
    EXPECT_LE(windows, 1U);
    Disconnect();
}

}  // namespace
}  // namespace morpho::test
