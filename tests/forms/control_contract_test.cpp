#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/gallery.h"
#include "forms/headless_toolkit.h"

namespace morpho::test {
namespace {

using Events = std::vector<std::string>;
using Step = std::function<void(Gallery&)>;
using Door = std::function<bool(Gallery&)>;

// What every kind of control keeps to.
struct Kind {
    const char* name;
    std::function<Control&(Gallery&)> control;
    Step assign;    // changes the state in code; null: the kind has none
    Step quietly;   // the same without a word; null: the kind has no such way
    Door user;      // the same, done by a person
    Events byCode;  // what each raises
    Events byUser;
};

void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.name;
}

const Kind kKinds[] = {
    {"CheckBox",
     [](Gallery& g) -> Control& { return g.chkApply; },
     [](Gallery& g) { g.chkApply.SetValue(true); },
     [](Gallery& g) { g.chkApply.SetValueQuietly(true); },
     [](Gallery& g) { return g.chkApply.UserSet(true); },
     {"chkApply_Click"},
     {"chkApply_Click"}},
    {"Slider",
     [](Gallery& g) -> Control& { return g.sldHue; },
     [](Gallery& g) { g.sldHue.SetValue(30); },
     [](Gallery& g) { g.sldHue.SetValueQuietly(30); },
     [](Gallery& g) { return g.sldHue.UserSettle(30); },
     {"sldHue_Change"},
     {"sldHue_Scroll", "sldHue_Change"}},
    {"ScrollBar",
     [](Gallery& g) -> Control& { return g.vsQuality; },
     [](Gallery& g) { g.vsQuality.SetValue(30); },
     {},
     [](Gallery& g) { return g.vsQuality.UserSet(30); },
     {"vsQuality_Change"},
     {"vsQuality_Change"}},
    {"TextBox",
     [](Gallery& g) -> Control& { return g.txtQuality; },
     [](Gallery& g) { g.txtQuality.SetText("80"); },
     [](Gallery& g) { g.txtQuality.SetTextQuietly("80"); },
     [](Gallery& g) { return g.txtQuality.UserEdit("80"); },
     {"txtQuality_Change"},
     {"txtQuality_Change"}},
    {"ComboBox",
     [](Gallery& g) -> Control& { return g.cmbTheme; },
     [](Gallery& g) { g.cmbTheme.SetListIndex(1); },
     {},
     [](Gallery& g) { return g.cmbTheme.UserSelect(1); },
     {"cmbTheme_Click"},
     {"cmbTheme_Click"}},
    {"ListBox",
     [](Gallery& g) -> Control& { return g.lstPlain; },
     [](Gallery& g) { g.lstPlain.SetListIndex(2); },
     {},
     [](Gallery& g) { return g.lstPlain.UserSelect(2); },
     {"lstPlain_Click"},
     {"lstPlain_Click"}},
    {"CheckListBox",
     [](Gallery& g) -> Control& { return g.lstNames; },
     [](Gallery& g) { g.lstNames.SetSelected(4, true); },
     [](Gallery& g) { g.lstNames.SetSelectedQuietly(4, true); },
     [](Gallery& g) { return g.lstNames.UserCheck(4, true); },
     {"lstNames_ItemCheck 4"},
     {"lstNames_ItemCheck 4"}},
    {"CommandButton",
     [](Gallery& g) -> Control& { return g.cmdApply; },
     {},
     {},
     [](Gallery& g) { return g.cmdApply.UserClick(); },
     {},
     {"cmdApply_Click"}},
    {"Link",
     [](Gallery& g) -> Control& { return g.lblLink; },
     {},
     {},
     [](Gallery& g) { return g.lblLink.UserClick(); },
     {},
     {"lblLink_Click"}},
};

class ControlContract : public testing::TestWithParam<Kind> {
  protected:
    HeadlessToolkit toolkit_;
    Gallery form_{toolkit_};
};

class StateContract : public ControlContract {};
class QuietContract : public ControlContract {};

std::vector<Kind> KindsWith(Step Kind::*ability) {
    std::vector<Kind> able;
    std::copy_if(std::begin(kKinds), std::end(kKinds), std::back_inserter(able),
                 [&](const Kind& kind) { return static_cast<bool>(kind.*ability); });
    return able;
}

std::string NameOf(const testing::TestParamInfo<Kind>& test) {
    return test.param.name;
}

INSTANTIATE_TEST_SUITE_P(Every, ControlContract, testing::ValuesIn(kKinds), NameOf);
INSTANTIATE_TEST_SUITE_P(Every, StateContract, testing::ValuesIn(KindsWith(&Kind::assign)), NameOf);
INSTANTIATE_TEST_SUITE_P(Every, QuietContract, testing::ValuesIn(KindsWith(&Kind::quietly)),
                         NameOf);

TEST_P(StateContract, AnnouncesAnAssignmentOnceAndAnEqualOneNotAtAll) {
    GetParam().assign(form_);
    GetParam().assign(form_);
    EXPECT_EQ(form_.events, GetParam().byCode);
}

TEST_P(QuietContract, KeepsSilentAboutAQuietAssignment) {
    GetParam().quietly(form_);
    GetParam().assign(form_);
    EXPECT_EQ(form_.events, Events{}) << "the assignment that follows is an equal one";
}

TEST_P(ControlContract, LetsAPersonIn) {
    EXPECT_TRUE(GetParam().user(form_));
    EXPECT_EQ(form_.events, GetParam().byUser);
}

TEST_P(ControlContract, RefusesWhereAPersonCouldNot) {
    Control& control = GetParam().control(form_);
    auto& frame = dynamic_cast<Frame&>(control.Parent());
    const auto expectRefused = [&](Control& cause, void (Control::*set)(bool)) {
        (cause.*set)(false);
        EXPECT_FALSE(GetParam().user(form_));
        (cause.*set)(true);
    };
    expectRefused(control, &Control::SetEnabled);
    expectRefused(control, &Control::SetVisible);
    expectRefused(frame, &Control::SetEnabled);
    expectRefused(frame, &Control::SetVisible);
    EXPECT_EQ(form_.events, Events{});
    EXPECT_TRUE(GetParam().user(form_));
}

TEST_P(ControlContract, EndsAFailingHandlerInOnePlace) {
    form_.answer = [] { throw RunTimeError(ErrorNumber::kOverflow, "Overflow"); };
    EXPECT_TRUE(GetParam().user(form_));
    EXPECT_THAT(form_.failures, testing::Each(testing::EndsWith(": Overflow")));
    EXPECT_EQ(form_.failures.size(), GetParam().byUser.size());
}

}  // namespace
}  // namespace morpho::test
