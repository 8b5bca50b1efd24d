#pragma once

#include "forms/controls.h"
#include "shared/logged_form.h"

namespace morpho {

// Which editor opens the About box.
enum class Editor { kImage = 0, kTheme = 1 };

// Names the editor, shows the version, and switches the diagnostic log.
class frmAbout : public LoggedForm {
  public:
    explicit frmAbout(const Program& program);

    // Shows the box until it is closed. OK changes `logMode` (0 off, 1 file, 2 debugger output)
    // according to "Enable logging"; while logging stays on, its mode is kept. The caller stores
    // it.
    void ShowAbout(Editor editor, int& logMode);

    PictureBox imgMorpho;
    Label lblName;
    Label lblVersion;
    Label lblWebSiteLink;  // visible when a web site is configured
    CheckBox chkLogging;
    CommandButton btnQuickReference;
    CommandButton btnOK;

  protected:
    void Form_Load() override;

  private:
    void btnOK_Click();
    void btnQuickReference_Click();
    void lblWebSiteLink_Click();

    Editor editor_ = Editor::kImage;
    int* logMode_ = nullptr;  // the caller's, while the box is shown
};

}  // namespace morpho
