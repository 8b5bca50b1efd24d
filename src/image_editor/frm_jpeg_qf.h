#pragma once

#include <string>

#include "forms/controls.h"
#include "forms/text_box.h"
#include "image_editor/quality_factor.h"
#include "shared/logged_form.h"

namespace morpho {

// Asks for the JPEG quality factor; the caller reads vsQF afterwards. Only OK closes it.
class frmJPEGQF : public LoggedForm {
  public:
    explicit frmJPEGQF(const Program& program);

    // The value when OK was pressed, as decimal text; empty before.
    const std::string& ValueText() const { return valueText_; }

    Label Label1;
    Label Label3;
    TextBox txtQF;
    ScrollBar vsQF;
    Label Label2;
    CommandButton btnOK;

  protected:
    void Form_Load() override;
    void Form_QueryUnload(bool& cancel, bool byUser) override;

  private:
    void btnOK_Click();

    QualityFactor quality_;
    std::string valueText_;
};

}  // namespace morpho
