#include "forms/keyboard.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "forms/gallery.h"
#include "forms/headless_toolkit.h"

namespace morpho::test {
namespace {

TEST(Keyboard, ReachesWhatTheKeysStandFor) {
    HeadlessToolkit toolkit;
    Gallery form(toolkit);
    form.optReport.SetValueQuietly(true);
    toolkit.WillPlay("frmGallery", [&](Form&) {
        const std::vector<Control*> stops = TabStops(form);
        EXPECT_THAT(stops, testing::Contains(&form.optReport));
        EXPECT_THAT(stops, testing::Contains(&form.txtQuality));
        for (std::size_t at = 0; at < stops.size(); ++at) {
            stops[at]->SetFocus();
            EXPECT_EQ(NextTabStop(form, false), stops[(at + 1) % stops.size()]);
            EXPECT_EQ(NextTabStop(form, true), stops[(at + stops.size() - 1) % stops.size()]);
        }
        const auto expectEvents = [&](Control& focused, const auto& press,
                                      const std::vector<std::string>& events) {
            focused.SetFocus();
            form.events.clear();
            press();
            EXPECT_EQ(form.events, events) << focused.Name();
        };
        const auto enter = [&] { EXPECT_TRUE(UserEnter(form)); };
        expectEvents(form.txtQuality, enter, {"cmdApply_Click"});
        expectEvents(form.cmdUndo, enter, {"cmdUndo_Click"});
        expectEvents(form.lblLink, enter, {"lblLink_Click"});
        expectEvents(form.cmdUndo, [&] { EXPECT_TRUE(UserAccessKey(form, 'y')); },
                     {"chkApply_Click"});
        expectEvents(form.cmdUndo, [&] { EXPECT_FALSE(UserAccessKey(form, 'D')); },
                     {});                       // disabled
        EXPECT_TRUE(UserAccessKey(form, 'Q'));  // a label's
        EXPECT_EQ(form.Focused(), &form.txtQuality);
    });
    form.ShowModal();
}

}  // namespace
}  // namespace morpho::test
