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
    std::unique_ptr<CommandBarControl> Add(const std::string& tag, int before) {
        auto control = format_->Add(kButtonControl, tag, before, true);
        control->SetTag(tag);
        return control;
    }

    Host host_;
    std::unique_ptr<CommandBar> menuBar_ = host_.Subject().ActiveMenuBar();
    std::unique_ptr<CommandBarControls> format_ =
        menuBar_->FindControl(Host::kFormatMenu, {}, false)->Controls();
};

TYPED_TEST_SUITE_P(CommandBarsContract);

TYPED_TEST_P(CommandBarsContract, AddsControlsAtAPositionAndFindsThemAgain) {
    const auto last = this->Add("last", 1);
    this->Add("first", 1);
    this->Add("end", 3);
    EXPECT_EQ(last->Index(), 2);
    EXPECT_EQ(last->Id(), 1);
    EXPECT_EQ(this->menuBar_->FindControl({}, "last", false), nullptr);
    EXPECT_EQ(this->menuBar_->FindControl({}, "end", true)->Index(), 3);
    EXPECT_EQ(this->menuBar_->FindControl(0, {}, true), nullptr);
    EXPECT_EQ(this->host_.Subject().Item("pictures")->FindControl({}, "last", true), nullptr);
}

TYPED_TEST_P(CommandBarsContract, RefusesWhatIsNotThere) {
    const auto button = this->Add("gone", 1);
    const auto view = button->AsButton();
    EXPECT_EQ(button->Controls(), nullptr);
    button->Delete();
    EXPECT_THROW(button->Delete(), RunTimeError);
    EXPECT_THROW(view->SetStyle(kIconAndCaptionStyle), RunTimeError);
    EXPECT_THROW(this->format_->Item(0), RunTimeError);
    EXPECT_THROW(this->format_->Item(1), RunTimeError);
    EXPECT_THROW(this->format_->Add(kButtonControl, "", 2, true), RunTimeError);
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
        EXPECT_THROW(button->Caption(), RunTimeError);
    });
    this->host_.Click("button");
    EXPECT_EQ(clicks, "13");
}

REGISTER_TYPED_TEST_SUITE_P(CommandBarsContract, AddsControlsAtAPositionAndFindsThemAgain,
                            RefusesWhatIsNotThere, TellsClicksToWhoStillListens);

}  // namespace morpho::test
