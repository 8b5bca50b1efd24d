// What every window owes its user: keys, names, and places of its own for its controls.

#include <cctype>
#include <map>

#include "about/frm_about.h"
#include "about/frm_quick_reference.h"
#include "image_editor/frm_jpeg_qf.h"
#include "platform/ignoring_case.h"
#include "theme_editor/frm_prompt_duplicate.h"
#include "theme_editor/frm_save_as.h"
#include "theme_editor/theme_window.h"

namespace morpho::test {
namespace {

// A person works with it, rather than only looking at it.
bool IsOperated(const Control& control) {
    const auto* label = dynamic_cast<const Label*>(&control);
    return (label == nullptr || label->IsLink()) &&
           dynamic_cast<const Frame*>(&control) == nullptr &&
           dynamic_cast<const PictureBox*>(&control) == nullptr &&
           dynamic_cast<const Timer*>(&control) == nullptr;
}

std::vector<Control*> VisibleControls(const Container& container, bool deeply) {
    std::vector<Control*> visible;
    for (Control* control : container.Controls()) {
        if (!control->Visible()) continue;
        visible.push_back(control);
        const auto* frame = dynamic_cast<const Frame*>(control);
        if (deeply && frame != nullptr) {
            const auto inside = VisibleControls(*frame, true);
            visible.insert(visible.end(), inside.begin(), inside.end());
        }
    }
    return visible;
}

bool Overlap(const Rectangle& a, const Rectangle& b) {
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
}

void ExpectKeysAndNames(const Form& form) {
    std::map<char, std::string> owners;
    for (const Control* control : VisibleControls(form, true)) {
        const std::string name = form.Name() + "." + control->Name();
        EXPECT_TRUE(!IsOperated(*control) || !control->AccessibleName().empty()) << name;
        if (control->AccessKey() == 0) continue;
        const std::string key = Lowered(std::string(1, control->AccessKey()));
        EXPECT_TRUE(ContainsIgnoringCase(control->Caption(), key)) << name;
        const auto [owner, isNew] = owners.emplace(key.front(), name);
        EXPECT_TRUE(isNew) << name << " has the key of " << owner->second;
    }
}

void ExpectOwnPlaces(const Container& container, Size inner, const std::string& name) {
    const auto controls = VisibleControls(container, false);
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const Rectangle& place = controls[i]->Place();
        const std::string which = name + "." + controls[i]->Name();
        EXPECT_TRUE(place.left >= 0 && place.top >= 0 && place.left + place.width <= inner.width &&
                    place.top + place.height <= inner.height)
            << which << " reaches beyond its container";
        for (std::size_t j = 0; j < i; ++j) {
            // The browser lies on the picture on purpose.
            if (controls[i]->Name() == "wbbImagePreview") continue;
            EXPECT_FALSE(Overlap(place, controls[j]->Place()))
                << which << " and " << controls[j]->Name() << " overlap";
        }
        if (const auto* frame = dynamic_cast<const Frame*>(controls[i]))
            ExpectOwnPlaces(*frame, {place.width, place.height}, which);
    }
}

void ExpectGoodForm(const Form& form) {
    ExpectKeysAndNames(form);
    ExpectOwnPlaces(form, form.Inner(), form.Name());
}

class EveryFormTest : public ThemeWindow {
  protected:
    // The form is looked at while it is shown, then closed.
    void ExpectGoodWhenShown(const std::string& name) {
        world_.toolkit.WillPlay(name, [this](Form& form) {
            ExpectGoodForm(form);
            ++seen_;
            form.Hide();
        });
    }
    int seen_ = 0;
};

TEST_F(EveryFormTest, TheThemeWindowIsGoodAtAnySize) {
    Open();
    ExpectKeysAndNames(*window_);
    constexpr Size kBorders{240, 600};  // thick ones
    for (const Size outer : {frmThemeMorpho::kMinimumSize, Size{14400, 9900}, Size{38400, 21600}}) {
        window_->UserResize({0, 0, outer.width, outer.height},
                            {outer.width - kBorders.width, outer.height - kBorders.height},
                            WindowState::kNormal);
        SCOPED_TRACE(outer.width);
        ExpectOwnPlaces(*window_, window_->Inner(), window_->Name());
    }
}

TEST_F(EveryFormTest, TheDialogsAreGood) {
    for (const char* name :
         {"frmPromptDuplicate", "frmJPEGQF", "frmSaveAs", "frmAbout", "frmQuickReference"})
        ExpectGoodWhenShown(name);
    for (const int icon : {kCriticalIcon, kQuestionIcon, kInformationIcon})
        frmPromptDuplicate(world_.program).ShowDuplicateNoticeDialog("Notice", "Title", icon);
    frmJPEGQF(world_.program).ShowModal();
    frmSaveAs(world_.program).ShowModal();
    frmQuickReference(world_.program).ShowModal();
    int logMode = 0;
    frmAbout(world_.program).ShowAbout(Editor::kTheme, logMode);
    world_.component.webSite = "https://example.org";
    frmAbout(world_.program).ShowAbout(Editor::kImage, logMode);
    EXPECT_EQ(seen_, 8);
}

}  // namespace
}  // namespace morpho::test
