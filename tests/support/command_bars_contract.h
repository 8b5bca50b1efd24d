#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/command_bars.h"
#include "platform/run_time_error.h"

namespace morpho::test {

// What the command bars of every host promise an add-in. `Host` has CommandBars& Subject(), with a
// bar "Pictures" and a Format popup of the number kFormatMenu on the menu bar, and
// void Click(const std::string& tag), which plays a person.
template <typename Host>
class CommandBarsContract : public ::testing::Test {
  protected:
    using Control = std::unique_ptr<CommandBarControl>;

    std::unique_ptr<CommandBarControls> Format() {
        return host_.Subject()
            .ActiveMenuBar()
            ->FindControl(Host::kFormatMenu, {}, false)
            ->Controls();
    }
    Control Add(const std::string& tag, int before) {
        Control control = Format()->Add(kButtonControl, tag, before, true);
        control->SetTag(tag);
        control->SetCaption("&" + tag);
        return control;
    }
    std::string Captions() {
        std::string captions;
        for (int i = 1; i <= Format()->Count(); ++i)
            captions += Format()->Item(i)->Caption();
        return captions;
    }

    Host host_;
};

TYPED_TEST_SUITE_P(CommandBarsContract);

TYPED_TEST_P(CommandBarsContract, AddsControlsAtAPositionAndFindsThemAgain) {
    const auto last = this->Add("last", 1);
    const auto first = this->Add("first", 1);
    this->Add("end", 3);
    EXPECT_EQ(this->Captions(), "&first&last&end");
    EXPECT_EQ(last->Index(), 2);
    EXPECT_EQ(last->Id(), 1);

    const auto menus = this->host_.Subject().ActiveMenuBar();
    EXPECT_EQ(menus->FindControl({}, "last", false), nullptr);
    EXPECT_EQ(menus->FindControl({}, "last", true)->Caption(), "&last");
    EXPECT_EQ(menus->FindControl({}, "none", true), nullptr);
    EXPECT_EQ(menus->FindControl(0, {}, true), nullptr);
    EXPECT_EQ(this->host_.Subject().Item("pictures")->FindControl({}, "last", true), nullptr);
}

TYPED_TEST_P(CommandBarsContract, RefusesWhatIsNotThere) {
    const auto button = this->Add("gone", 1);
    const auto view = button->AsButton();
    EXPECT_EQ(button->Controls(), nullptr);
    button->Delete();
    EXPECT_EQ(this->Captions(), "");
    EXPECT_THROW(button->Delete(), RunTimeError);
    EXPECT_THROW(button->Caption(), RunTimeError);
    EXPECT_THROW(view->SetStyle(kIconAndCaptionStyle), RunTimeError);
    EXPECT_THROW(this->Format()->Item(0), RunTimeError);
    EXPECT_THROW(this->Format()->Item(1), RunTimeError);
    EXPECT_THROW(this->Format()->Add(kButtonControl, "", 2, true), RunTimeError);
    EXPECT_THROW(this->host_.Subject().Item("Nowhere"), RunTimeError);
}

TYPED_TEST_P(CommandBarsContract, TellsClicksToWhoStillListens) {
    const auto button = this->Add("button", 1);
    std::string clicks;
    std::unique_ptr<ClickEvents> second;
    const auto first = button->AsButton()->OnClick([&] {
        clicks += "1";
        second.reset();
    });
    second = button->AsButton()->OnClick([&] { clicks += "2"; });
    const auto third = button->AsButton()->OnClick([&] {
        clicks += "3";
        button->Delete();
    });
    this->host_.Click("button");
    EXPECT_EQ(clicks, "13");
    EXPECT_EQ(this->Captions(), "");
}

REGISTER_TYPED_TEST_SUITE_P(CommandBarsContract, AddsControlsAtAPositionAndFindsThemAgain,
                            RefusesWhatIsNotThere, TellsClicksToWhoStillListens);

}  // namespace morpho::test
