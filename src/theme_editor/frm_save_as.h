#pragma once

#include <string>
#include <string_view>

#include "forms/controls.h"
#include "forms/lists.h"
#include "forms/text_box.h"
#include "shared/logged_form.h"

namespace morpho {

// Asks for the name and the title of a new theme: suggests free ones, and refuses those of the
// installed themes.
class frmSaveAs : public LoggedForm {
  public:
    explicit frmSaveAs(const Program& program);

    // Shows the dialog with name and title of the theme now loaded, from which the suggestions are
    // made. True when the person saved: name, title and applyToWeb are then what was entered.
    bool RunModal(std::string_view prompt, std::string& name, std::string& title, bool& applyToWeb);

    Label lblMessage;
    Label lblFolder;
    TextBox txtThemeName;
    Label lbllongname;
    TextBox txtThemeTitle;
    CheckBox chkApplyToWeb;
    CommandButton cmdSave;
    CommandButton cmdCancel;
    // Names and titles of the installed themes, at the same index; never shown.
    ListBox lstAppThemeName;
    ListBox lstAppThemeTitle;

  protected:
    void Form_Load() override;
    void TellError(std::string_view handler, const RunTimeError& error) override;

  private:
    void cmdSave_Click();
    void cmdCancel_Click();

    void ListThemesOf(const std::string& themesFolder);
    // Shows the reason and gives the box the focus; always false.
    bool Refuse(std::string_view reason, TextBox& box);
    bool AcceptEntries();

    std::string prompt_;
    std::string name_;
    std::string title_;
    bool applyToWeb_ = false;
    bool saved_ = false;
};

}  // namespace morpho
