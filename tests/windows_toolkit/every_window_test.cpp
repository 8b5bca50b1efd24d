#include <cstdlib>
#include <fstream>

#include "about/frm_about.h"
#include "about/frm_quick_reference.h"
#include "image_editor/frm_image_morpho.h"
#include "image_editor/frm_jpeg_qf.h"
#include "image_editor/frm_web_open.h"
#include "resources/embedded_resources.h"
#include "support/fake_platform.h"
#include "theme_editor/frm_prompt_duplicate.h"
#include "theme_editor/frm_save_as.h"
#include "theme_editor/frm_theme_morpho.h"
#include "windows_toolkit/control_peer.h"
#include "windows_toolkit/windows_screen.h"

namespace morpho::test {
namespace {

// Message boxes would wait for a person.
class SilentToolkit : public WindowsToolkit {
  public:
    Answer ShowMessage(Form*, std::string_view, int, std::string_view) override {
        return Answer::kOk;
    }
};

// For scripts/look_windows.sh: a picture of each window goes to the folder in the environment's
// MORPHO_LOOK.
void ExpectPicture(WindowsToolkit& toolkit, const Form& form) {
    const std::string png = toolkit.PictureOf(form);
    EXPECT_TRUE(png.starts_with("\x89PNG\r\n")) << form.Name();
    const char* const folder = std::getenv("MORPHO_LOOK");
    if (folder != nullptr)
        std::ofstream(folder + ("\\" + form.Name()) + ".png", std::ios::binary) << png;
}

// Each control has a window, shown as the model says, and a container has room for it.
void ExpectInPlace(HWND window, const Container& container, std::size_t& shown) {
    for (Control* const control : container.Controls()) {
        if (dynamic_cast<Timer*>(control) != nullptr) continue;
        const HWND own = morpho::WindowOf(window, *control);
        EXPECT_NE(own, nullptr) << control->Name();
        EXPECT_EQ((GetWindowLongW(own, GWL_STYLE) & WS_VISIBLE) != 0, control->Visible())
            << control->Name();
        RECT place, room;
        GetWindowRect(own, &place);
        GetClientRect(GetParent(own), &room);
        MapWindowPoints(nullptr, GetParent(own), reinterpret_cast<POINT*>(&place), 2);
        // A picture may be larger than the frame that clips it.
        const bool clipped = dynamic_cast<PictureBox*>(control) != nullptr;
        EXPECT_TRUE(clipped || !control->Visible() ||
                    (place.right <= room.right && place.bottom <= room.bottom))
            << control->Name();
        ++shown;
        if (const auto* const inner = dynamic_cast<Container*>(control))
            ExpectInPlace(window, *inner, shown);
    }
}

class EveryWindow : public testing::Test {
  protected:
    EveryWindow() {
        toolkit_.WhenFormStands([this](Form& form) {
            ExpectInPlace(toolkit_.WindowOf(form), form, shown_);
            ExpectPicture(toolkit_, form);
            form.Hide();
        });
    }
    void Show(Form& form) {
        shown_ = 0;
        form.ShowModal();
        EXPECT_GT(shown_, 0U) << form.Name();
    }

    FakePlatform world_;
    SilentToolkit toolkit_;
    EmbeddedResources resources_;
    Platform platform_{world_.registry, world_.files,       world_.codePage, world_.shell,
                       world_.clock,    world_.environment, resources_,      world_.colorizers,
                       toolkit_,        world_.automation,  world_.clipboard};
    Program program_{platform_, world_.component};
    std::size_t shown_ = 0;
};

TEST_F(EveryWindow, StandsWithAllItsControls) {
    Gallery gallery(toolkit_);
    Show(gallery);
    frmAbout about(program_);
    int logMode = 0;
    about.ShowAbout(Editor::kTheme, logMode);
    frmQuickReference reference(program_);
    Show(reference);
    frmJPEGQF quality(program_);
    Show(quality);
    frmWebOpen webOpen(program_, "Open");
    Show(webOpen);
    frmSaveAs saveAs(program_);
    Show(saveAs);
    frmPromptDuplicate notice(program_);
    notice.ShowDuplicateNoticeDialog(
        "Some pictures of this theme stand for several elements. "
        "They are recoloured together.",
        "Theme Morpho", kInformationIcon);
    frmImageMorpho image(program_);
    Show(image);
    frmThemeMorpho theme(program_);
    Show(theme);
}

}  // namespace
}  // namespace morpho::test
