#include "desktop/batch_window.h"

#include "image_editor/frm_jpeg_qf.h"
#include "text/ignoring_case.h"
#include "theme_editor/frm_prompt_duplicate.h"
#include "theme_editor/frm_save_as.h"

namespace morpho {

namespace {

// Questions are answered by the script; a message with nothing but OK is a refusal.
bool IsQuestion(int flags) {
    return ButtonsOf(flags) != kOkOnly;
}

}  // namespace

BatchWindow::BatchWindow(const Program& program, HeadlessToolkit& toolkit)
    : toolkit_(toolkit), window_(program) {
    toolkit_.WillPlay("frmJPEGQF", [this](Form& form) {
        auto& prompt = static_cast<frmJPEGQF&>(form);
        prompt.vsQF.UserSet(quality_);
        prompt.btnOK.UserClick();
    });
    toolkit_.WillPlay("frmPromptDuplicate",
                      [](Form& form) { static_cast<frmPromptDuplicate&>(form).btnOK.UserClick(); });
    window_.Load();
    RefuseMessages();
}

BatchWindow::~BatchWindow() {
    toolkit_.ForgetAnswers();
    // The save that the batch asked for is over; the window must not ask about the rest.
    toolkit_.WillAnswer(Answer::kNo);
    window_.Unload();
}

void BatchWindow::OpenTheme(const std::string& name) {
    const int index = window_.cmbThemeName.FindExact(name);
    Require(index != kNoEntry, "This web has no theme named \"" + name + "\" that can be opened.");
    Require(window_.cmbThemeLabel.UserSelect(index),
            "The theme \"" + name + "\" cannot be opened.");
    RefuseMessages();
    Require(window_.LoadFailure().empty(),
            "The theme \"" + name + "\" cannot be loaded: " + window_.LoadFailure() + ".");
}

void BatchWindow::Take(const Step& step) {
    switch (step.kind) {
        case Step::Kind::kSelect:
            Select(step.words);
            break;
        case Step::Kind::kBrightness:
            Require(window_.sldBrightness.UserSettle(step.number),
                    "The brightness cannot be changed here.");
            break;
        case Step::Kind::kSaturation:
            Require(window_.sldSaturation.UserSettle(step.number),
                    "The saturation cannot be changed here.");
            break;
        case Step::Kind::kHue:
            Require(window_.sldHue.UserSettle(step.number), "The hue cannot be changed here.");
            break;
        case Step::Kind::kQuality:
            quality_ = step.number;
            break;
        case Step::Kind::kApply:
            Press(window_.cmdApply);
            break;
        case Step::Kind::kUndo:
            Press(window_.cmdUndo);
            break;
        case Step::Kind::kRedo:
            Press(window_.cmdRedo);
            break;
        case Step::Kind::kReset:
            Press(window_.cmdReset);
            break;
    }
    RefuseMessages();
}

SavedTheme BatchWindow::Save() {
    const int index = window_.cmbThemeName.ListIndex();
    const SavedTheme theme{window_.cmbThemeName.Text(), window_.cmbThemeLabel.List(index)};
    bool readOnly = false;
    toolkit_.WillPlay("frmSaveAs", [&](Form& form) {
        readOnly = true;
        static_cast<frmSaveAs&>(form).cmdCancel.UserClick();
    });
    toolkit_.WillAnswer(Answer::kYes);
    Press(window_.cmdSave);
    Require(!readOnly,
            "The theme \"" + theme.name + "\" is read-only and can only be saved as another one.");
    RefuseMessages();
    return theme;
}

SavedTheme BatchWindow::SaveAs(const Outcome& outcome) {
    SavedTheme saved;
    toolkit_.WillPlay("frmSaveAs", [&](Form& form) {
        auto& dialog = static_cast<frmSaveAs&>(form);
        if (outcome.name != "auto") dialog.txtThemeName.UserEdit(outcome.name);
        if (outcome.title) dialog.txtThemeTitle.UserEdit(*outcome.title);
        dialog.chkApplyToWeb.UserSet(outcome.applyToWeb);
        dialog.cmdSave.UserClick();
        saved = {dialog.txtThemeName.Text(), dialog.txtThemeTitle.Text()};
        if (dialog.IsVisible()) dialog.cmdCancel.UserClick();
    });
    Press(window_.cmdSaveAs);
    RefuseMessages();
    return saved;
}

void BatchWindow::Select(const std::vector<std::string>& words) {
    for (const std::string& word : words) {
        if (word == "all") {
            Press(window_.cmdSelectAll);
        } else if (word == "none") {
            Press(window_.cmdSelectNone);
        } else if (word == "active") {
            Press(window_.cmdSelectActive);
        } else if (word == "normal") {
            Press(window_.cmdSelectNormal);
        } else {
            SelectElement(word);
        }
    }
}

void BatchWindow::SelectElement(const std::string& key) {
    const int row = window_.lstImageNames.FindExact(key);
    Require(row != kNoEntry, "The theme has no picture for " + key + ".");
    Require(window_.lstImageNames.UserCheck(row, true), "The elements cannot be selected here.");
}

void BatchWindow::Press(CommandButton& button) {
    Require(button.UserClick(), button.Caption() + " is not possible at this point.");
}

void BatchWindow::Require(bool done, const std::string& refusal) {
    if (!done) throw Refusal(refusal);
}

void BatchWindow::RefuseMessages() {
    Require(toolkit_.Unscripted().empty(),
            toolkit_.Unscripted().empty() ? "" : toolkit_.Unscripted().front());
    const auto& messages = toolkit_.Messages();
    for (; messagesSeen_ < messages.size(); ++messagesSeen_) {
        const HeadlessToolkit::Message& message = messages[messagesSeen_];
        // A notice of a save that went well is for the report.
        if (IsQuestion(message.flags) || message.text == window_.LastSave().notice) continue;
        const std::string& reason = window_.LastSave().failure;
        throw Refusal(reason.empty() ? message.text : message.text + " " + reason);
    }
}

}  // namespace morpho
