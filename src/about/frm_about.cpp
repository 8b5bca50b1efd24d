#include "about/frm_about.h"

#include <string>

#include "about/frm_quick_reference.h"
#include "frontpage/environment_discovery.h"
#include "platform/platform.h"
#include "platform/resources.h"
#include "resources/resource_ids.h"
#include "shared/log.h"
#include "shared/mod_shared_code.h"

namespace morpho {

namespace {

constexpr const char* kTradeMark = "\xE2\x84\xA2";  // U+2122

}  // namespace

frmAbout::frmAbout(const Program& program)
    : LoggedForm(program, {"frmAbout", "About", {5760, 2835}}),
      imgMorpho(*this, {.name = "imgMorpho", .place = {180, 180, 1440, 1920}}, true),
      lblName(*this, {.name = "lblName", .place = {1860, 225, 3720, 240}}),
      lblVersion(*this, {.name = "lblVersion", .place = {1860, 510, 3720, 240}}),
      lblWebSiteLink(*this,
                     {.name = "lblWebSiteLink",
                      .place = {1860, 960, 3720, 240},
                      .caption = "Morpho on the web"},
                     Alignment::kLeft, [this] { lblWebSiteLink_Click(); }),
      chkLogging(
          *this,
          {.name = "chkLogging", .place = {1860, 1815, 3720, 285}, .caption = "&Enable logging"}),
      btnQuickReference(*this,
                        {.name = "btnQuickReference",
                         .place = {2685, 2310, 1680, 345},
                         .caption = "&Quick Reference"},
                        [this] { btnQuickReference_Click(); }),
      btnOK(
          *this, {.name = "btnOK", .place = {4455, 2310, 1125, 345}, .caption = "OK"},
          [this] { btnOK_Click(); }, ButtonRole::kDefault) {}

void frmAbout::ShowAbout(Editor editor, int& logMode) {
    editor_ = editor;
    logMode_ = &logMode;
    ShowModal();
    logMode_ = nullptr;
}

void frmAbout::Form_Load() {
    const std::string product = editor_ == Editor::kImage ? "Image Morpho" : "Theme Morpho";
    SetCaption("About " + product);
    lblName.SetCaption(product + kTradeMark);
    lblVersion.SetCaption("Version " + GetVersionText(ThePlatform(), false));
    lblWebSiteLink.SetVisible(!TheComponent().webSite.empty());
    chkLogging.SetValue(IsLogOn(*logMode_));
    const auto picture = ThePlatform().resources.Data(kPictureResource, kAboutPicture);
    imgMorpho.SetPicture({reinterpret_cast<const char*>(picture.data()), picture.size()});
}

void frmAbout::btnOK_Click() {
    if (!chkLogging.Value()) {
        *logMode_ = kLogOff;
    } else if (!IsLogOn(*logMode_)) {
        *logMode_ = kLogToFile;
    }
    Unload();
}

void frmAbout::btnQuickReference_Click() {
    frmQuickReference guide(TheProgram());
    guide.chkDontShow.SetVisible(false);
    guide.ShowModal();
}

void frmAbout::lblWebSiteLink_Click() {
    constexpr int kHighestFailure = 32;
    const std::string& address = TheComponent().webSite;
    if (ShellOpen(ThePlatform().shell, address, "") <= kHighestFailure)
        WriteLog("Cannot open " + address);
}

}  // namespace morpho
