// What every window owes its user: keys, names, and places of its own for its controls.

#include "about/frm_about.h"
#include "about/frm_quick_reference.h"
#include "image_editor/frm_image_morpho.h"
#include "image_editor/frm_jpeg_qf.h"
#include "image_editor/frm_web_open.h"
#include "text/ignoring_case.h"
#include "theme_editor/frm_prompt_duplicate.h"
#include "theme_editor/theme_world.h"

namespace morpho::test {
namespace {

bool Overlap(const Rectangle& a, const Rectangle& b) {
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
}

class GoodForm {
  public:
    static void Expect(const Form& form) {
        for (const Control* control : OperatedControls(form))
            EXPECT_NE(control->AccessibleName(), "") << form.Name() << '.' << control->Name();
        GoodForm().ExpectGood(form, {0, 0, form.Inner().width, form.Inner().height}, form.Name());
    }

  private:
    void ExpectGood(const Container& container, const Rectangle& outer, const std::string& name) {
        std::vector<const Control*> before;
        for (const Control* control : container.Controls()) {
            if (!control->Visible()) continue;
            const std::string which = name + "." + control->Name();
            ExpectKeyOfItsOwn(*control, which);
            const Rectangle& place = control->Place();
            EXPECT_TRUE(place.left >= 0 && place.top >= 0 &&
                        place.left + place.width <= outer.width &&
                        place.top + place.height <= outer.height)
                << which << " reaches beyond its container";
            for (const Control* other : before) {
                // The browser lies on the picture on purpose.
                EXPECT_TRUE(!Overlap(place, other->Place()) || control->Name() == "wbbImagePreview")
                    << which << " and " << other->Name() << " overlap";
            }
            before.push_back(control);
            if (const auto* frame = dynamic_cast<const Frame*>(control))
                ExpectGood(*frame, place, which);
        }
    }

    void ExpectKeyOfItsOwn(const Control& control, const std::string& which) {
        if (control.AccessKey() == 0) return;
        const std::string key = Folded(std::string(1, control.AccessKey()));
        const auto [owner, isNew] = owners_.emplace(key, which);
        EXPECT_TRUE(isNew) << which << " has the key of " << owner->second;
    }

    std::map<std::string, std::string> owners_;  // of access keys
};

void ExpectGoodAtAnySize(Form& window) {
    constexpr Size kBorders{240, 600};  // thick ones
    for (const Size outer : {window.MinimumSize(), Size{14400, 9900}, Size{38400, 21600}}) {
        window.UserResize({0, 0, outer.width, outer.height},
                          {outer.width - kBorders.width, outer.height - kBorders.height},
                          WindowState::kNormal);
        SCOPED_TRACE(outer.width);
        GoodForm::Expect(window);
    }
}

TEST_F(OpenThemeWindow, IsGoodAtAnySize) {
    ExpectGoodAtAnySize(*window);
}

TEST(ImageWindow, IsGoodAtAnySize) {
    FakePlatform world;
    world.toolkit.WillPlay("frmAbout", [](Form& form) { form.Hide(); });
    frmImageMorpho window(world.program);
    window.Load();
    window.frameQF.SetVisible(true);
    ExpectGoodAtAnySize(window);
}

TEST(EveryDialog, IsGood) {
    FakePlatform world;
    int seen = 0;
    for (const char* name : {"frmPromptDuplicate", "frmJPEGQF", "frmWebOpen", "frmSaveAs",
                             "frmAbout", "frmQuickReference"}) {
        world.toolkit.WillPlay(name, [&](Form& form) {
            GoodForm::Expect(form);
            ++seen;
            form.Hide();
        });
    }
    for (const int icon : {kCriticalIcon, kQuestionIcon, kInformationIcon})
        frmPromptDuplicate(world.program).ShowDuplicateNoticeDialog("Notice", "Title", icon);
    frmJPEGQF(world.program).ShowModal();
    frmWebOpen(world.program, "Open").ShowModal();
    frmSaveAs(world.program).ShowModal();
    frmQuickReference(world.program).ShowModal();
    int logMode = 0;
    frmAbout(world.program).ShowAbout(Editor::kTheme, logMode);
    world.component.webSite = "https://example.org";
    frmAbout(world.program).ShowAbout(Editor::kImage, logMode);
    EXPECT_EQ(seen, 9);
}

}  // namespace
}  // namespace morpho::test
