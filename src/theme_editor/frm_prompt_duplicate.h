#pragma once

#include "forms/controls.h"
#include "shared/logged_form.h"

namespace morpho {

// A notice that the person can silence: that several theme elements share one image, or that an
// add-in has not found a place for its command.
class frmPromptDuplicate : public LoggedForm {
  public:
    explicit frmPromptDuplicate(const Program& program);

    // Shows the notice; `iconKind` is kCriticalIcon, kQuestionIcon or kInformationIcon. Returns
    // whether it may be shown again.
    bool ShowDuplicateNoticeDialog(std::string_view message, std::string_view title, int iconKind);

    PictureBox imgStop{*this, {"imgStop", {180, 180, 480, 480}}, true};
    PictureBox imgQuestion{*this, {"imgQuestion", {180, 180, 480, 480}}, true};
    PictureBox imgInformation{*this, {"imgInformation", {180, 180, 480, 480}}, true};
    Label lblMessage{*this, {"lblMessage", {840, 180, 5160, 960}}};
    CommandButton btnOK{*this,
                        {"btnOK", {4875, 1245, 1125, 375}, "OK"},
                        [this] { btnOK_Click(); },
                        ButtonRole::kDefaultAndCancel};
    CheckBox chkDontShowAgain{
        *this, {"chkDontShowAgain", {840, 1312, 3900, 240}, "&Don't show this message again"}};

  private:
    void btnOK_Click() { Unload(); }
};

}  // namespace morpho
