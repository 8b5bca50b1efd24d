#include "image_editor/frm_jpeg_qf.h"

namespace morpho {

frmJPEGQF::frmJPEGQF(const Program& program)
    : LoggedForm(program, {.name = "frmJPEGQF",
                           .caption = "JPEG Quality Factor",
                           .inner = {5400, 2400},
                           .hasCloseButton = false}),
      Label1(*this, {.name = "Label1",
                     .place = {180, 180, 5040, 450},
                     .caption = "One or more selected theme elements are using JPEG images. Please "
                                "specify the quality factor to be used for the colorizer."}),
      Label3(*this,
             {.name = "Label3", .place = {180, 855, 1275, 240}, .caption = "&Quality Factor:"}),
      txtQF(
          *this,
          {.name = "txtQF",
           .place = {1500, 810, 600, 315},
           .toolTip = "JPEG quality factor ( 1 - 100 )",
           .accessibleName = "Quality Factor"},
          TextBox::Kind::kSingleLine, [this](char32_t& key) { quality_.txtQF_KeyPress(key); },
          [this] { quality_.txtQF_Change(); }),
      vsQF(*this,
           {.name = "vsQF",
            .place = {2115, 810, 255, 315},
            .accessibleName = "Raise or lower the quality factor"},
           kQualityMinimum, kQualityMaximum, kInitialQuality, [this] { quality_.vsQF_Change(); }),
      Label2(*this, {.name = "Label2",
                     .place = {180, 1290, 5040, 450},
                     .caption = "Note: Set value to 75 or higher to prevent image degradation when "
                                "the theme is saved."}),
      btnOK(
          *this, {.name = "btnOK", .place = {4095, 1875, 1125, 345}, .caption = "OK"},
          [this] { btnOK_Click(); }, ButtonRole::kDefault),
      quality_(txtQF, vsQF, [] { return true; }) {}

void frmJPEGQF::Form_Load() {
    txtQF.SetFocus();
    txtQF.SelectAll();
}

void frmJPEGQF::Form_QueryUnload(bool& cancel, bool byUser) {
    cancel = byUser;  // only OK closes the box: the caller needs a value
}

void frmJPEGQF::btnOK_Click() {
    valueText_ = std::to_string(vsQF.Value());
    Hide();
}

}  // namespace morpho
