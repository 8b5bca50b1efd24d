#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "forms/gallery.h"
#include "forms/headless_toolkit.h"

// What the peer of every kind of control keeps to, on every toolkit's screen.
namespace morpho::test {

enum class Key {
    kSpace,
    kBackspace,
    kLeft,
    kRight,
    kUp,
    kDown,
    kHome,
    kEnd,
    kPageDown,
    k5,
    k6,
    kX,
    kPeriod
};

// A screen with the windows of forms on it, worked as a person would.
class Screen {
  public:
    virtual ~Screen() = default;
    virtual Toolkit& TheToolkit() = 0;
    // Shows the form and, once it stands, runs the script; then hides the form.
    virtual void Show(Form& form, const std::function<void()>& script) = 0;
    // Presses a key on the control, which gets the focus.
    virtual void Press(const Control& control, Key key) = 0;
    // Lets everything happen that is waiting, and the pause that a slider waits for.
    virtual void Pause() = 0;
    // Makes the control's widget and the one around it take input, whatever the model says.
    virtual void BringWithinReach(const Control& control) = 0;
    // The widget's value; of a list the current entry or, where it has boxes, the ticked ones; of a
    // tree or list view the selected one. "true" and "false" for what is marked.
    virtual std::string Shown(const Control& control) = 0;
};

using Events = std::vector<std::string>;

struct Kind {
    Control& (*control)(Gallery&);
    std::string before, assigned;  // what the widget shows at first, and after Assign
    std::vector<Key> keys;         // what a person types
    std::string typed;             // what it shows then
    Events events;                 // and what that raised
};

// In code, as quietly as each kind can.
inline void Assign(Gallery& gallery) {
    gallery.chkApply.SetValueQuietly(true);
    gallery.sldHue.SetValueQuietly(15);
    gallery.vsQuality.SetValue(30);
    gallery.txtQuality.SetTextQuietly("8");
    gallery.cmbTheme.SetListIndex(1);
    gallery.lstPlain.SetListIndex(0);
    gallery.lstNames.SetSelectedQuietly(0, true);
    gallery.optList.SetValueQuietly(true);
    gallery.tvFolders.SelectNodeQuietly(gallery.root);
    gallery.lvFiles.SelectRowQuietly(0);
    gallery.hsPan.SetValue(30);
    gallery.vsPan.SetValue(30);
}

template <auto member>
Control& Of(Gallery& gallery) {
    return gallery.*member;
}

inline const std::vector<Kind>& Kinds() {
    using G = Gallery;
    static const std::string text = "txtQuality_Change", scroll = "sldHue_Scroll",
                             change = "sldHue_Change", node = "tvFolders_NodeClick ",
                             hs = "hsPan_Change", vs = "vsPan_Change";
    static const std::vector<Kind> kinds = {
        {Of<&G::chkApply>, "false", "true", {Key::kSpace}, "false", {"chkApply_Click"}},
        {Of<&G::sldHue>, "0", "15", {Key::kRight, Key::kRight}, "17", {scroll, scroll, change}},
        {Of<&G::sldHue>, "0", "15", {Key::kHome, Key::kEnd}, "180", {scroll, scroll, change}},
        {Of<&G::vsQuality>, "75", "30", {Key::kUp}, "31", {"vsQuality_Change"}},
        {Of<&G::txtQuality>, "", "8", {Key::kEnd, Key::k5, Key::kX, Key::kPeriod}, "85", {text}},
        {Of<&G::txtQuality>, "", "8", {Key::kEnd, Key::kBackspace, Key::k6}, "6", {text, text}},
        {Of<&G::cmbTheme>, "", "Tom & Jerry", {Key::kDown}, "Ärger", {"cmbTheme_Click"}},
        {Of<&G::lstPlain>, "", "one", {Key::kDown}, "two", {"lstPlain_Click"}},
        {Of<&G::lstNames>,
         "",
         "active/image-0",
         {Key::kHome, Key::kSpace},
         "",
         {"lstNames_ItemCheck 0"}},
        {Of<&G::optList>, "false", "true", {Key::kRight}, "false", {"optReport_Click"}},
        {Of<&G::tvFolders>, "", "web", {Key::kRight, Key::kDown}, "_private", {node + "_private"}},
        {Of<&G::lvFiles>, "", "a.gif", {Key::kDown}, "b.jpg", {"lvFiles_ItemClick 1"}},
        {Of<&G::hsPan>, "0", "30", {Key::kRight, Key::kPageDown}, "195", {hs, hs}},
        {Of<&G::vsPan>, "0", "30", {Key::kDown, Key::kPageDown}, "195", {vs, vs}},
    };
    return kinds;
}

// `ScreenType` is a Screen.
template <typename ScreenType>
class PeerContract : public testing::Test {
  protected:
    // Runs the script for every kind, each on a window of its own.
    template <typename Script>
    void ForEveryKind(bool assigned, Script script) {
        for (const Kind& kind : Kinds()) {
            Gallery form(screen_.TheToolkit());
            const Control& control = kind.control(form);
            const testing::ScopedTrace trace(__FILE__, __LINE__, control.Name());
            if (assigned) Assign(form);
            screen_.Show(form, [&] {
                form.events.clear();
                script(kind, form, control);
                form.answer = {};
            });
        }
    }
    void Type(const Kind& kind, const Control& control) {
        for (const Key key : kind.keys)
            screen_.Press(control, key);
        screen_.Pause();
    }
    // A handler that undoes in code what the person did; its own doing it leaves alone.
    static std::function<void()> PutBack(Gallery& form) {
        return [&form] {
            form.answer = {};
            Assign(form);
            form.answer = PutBack(form);
        };
    }
    ScreenType screen_;
};

TYPED_TEST_SUITE_P(PeerContract);

TYPED_TEST_P(PeerContract, FollowsTheModelWithoutAnEventOfItsOwn) {
    HeadlessToolkit none;
    Gallery twin(none);
    Assign(twin);
    this->ForEveryKind(false, [&](const Kind& kind, Gallery& form, const Control& control) {
        EXPECT_EQ(this->screen_.Shown(control), kind.before);
        Assign(form);
        this->screen_.Pause();
        EXPECT_EQ(this->screen_.Shown(control), kind.assigned);
        EXPECT_EQ(form.events, twin.events);
    });
}

TYPED_TEST_P(PeerContract, ReportsWhatAPersonDoesOnce) {
    this->ForEveryKind(true, [&](const Kind& kind, Gallery& form, const Control& control) {
        this->Type(kind, control);
        EXPECT_EQ(form.events, kind.events);
        EXPECT_EQ(this->screen_.Shown(control), kind.typed);
    });
}

TYPED_TEST_P(PeerContract, ShowsWhatTheHandlerPutsBack) {
    this->ForEveryKind(true, [&](const Kind& kind, Gallery& form, const Control& control) {
        form.answer = this->PutBack(form);
        this->Type(kind, control);
        EXPECT_EQ(this->screen_.Shown(control), kind.assigned);
    });
}

TYPED_TEST_P(PeerContract, ShowsTheModelWhereItRefuses) {
    this->ForEveryKind(true, [&](const Kind& kind, Gallery& form, const Control& control) {
        for (Frame* const frame : {&form.fraPick, &form.fraProcess, &form.fraPreview})
            frame->SetEnabled(false);
        this->screen_.BringWithinReach(control);
        this->Type(kind, control);
        EXPECT_EQ(this->screen_.Shown(control), kind.assigned);
        EXPECT_EQ(form.events, Events{});
    });
}

REGISTER_TYPED_TEST_SUITE_P(PeerContract, FollowsTheModelWithoutAnEventOfItsOwn,
                            ReportsWhatAPersonDoesOnce, ShowsWhatTheHandlerPutsBack,
                            ShowsTheModelWhereItRefuses);

}  // namespace morpho::test
