#pragma once

#include "forms/controls.h"
#include "forms/text_box.h"
#include "shared/logged_form.h"

namespace morpho {

// A step-by-step guide to the theme editor. The caller reads chkDontShow afterwards.
class frmQuickReference : public LoggedForm {
  public:
    explicit frmQuickReference(const Program& program);

    Label lblTitle;
    TextBox txtQuickReference;
    CheckBox chkDontShow;
    CommandButton btnOK;

  protected:
    void Form_Load() override;
};

}  // namespace morpho
