// How the Theme Morpho window selects elements and recolours them.

#include "editing/hourglass_pointer.h"
#include "theme_editor/frm_prompt_duplicate.h"
#include "theme_editor/frm_theme_morpho.h"

namespace morpho {

namespace {

constexpr std::string_view kDuplicateNoticeText =
    "In selecting or deselecting this element, you may have noticed that multiple theme elements "
    "were selected or deselected. This is because the image associated with this element is also "
    "used by other elements in this theme.";
constexpr std::string_view kNothingSelected =
    "No theme elements have been selected. Please select one or more elements to process.";

}  // namespace

void frmThemeMorpho::lstImageNames_ItemCheck(int index) {
    selection_.ItemChecked(index, lstImageNames.Selected(index));
}
void frmThemeMorpho::cmdSelectAll_Click() {
    selection_.SelectAll();
}
void frmThemeMorpho::cmdSelectNone_Click() {
    selection_.SelectNone();
}
void frmThemeMorpho::cmdSelectActive_Click() {
    selection_.SelectActive();
}
void frmThemeMorpho::cmdSelectNormal_Click() {
    selection_.SelectNormal();
}

void frmThemeMorpho::ShowElements() {
    // Fewer elements than entries: another theme is being listed. Otherwise elements are only
    // added.
    if (elements_.Count() < lstImageNames.ListCount()) {
        lstImageNames.Clear();
        lstGifNames.Clear();
    }
    for (int row = lstImageNames.ListCount(); row < elements_.Count(); ++row) {
        lstGifNames.AddItem(elements_.File(row));
        lstImageNames.AddItem(elements_.Key(row));
        lstImageNames.SetItemData(row, elements_.Group(row));
    }
    for (int row = 0; row < elements_.Count(); ++row)
        lstImageNames.SetSelectedQuietly(row, elements_.IsSelected(row));
}

bool frmThemeMorpho::ShowDuplicateNotice() {
    lstImageNames.Refresh();
    frmPromptDuplicate notice(TheProgram());
    return notice.ShowDuplicateNoticeDialog(kDuplicateNoticeText, kThemeProduct, kInformationIcon);
}

void frmThemeMorpho::SelectionTouched() {
    if (sliders_.Adjustment().IsNeutral()) return;
    ResetSliders();
    colorization_.Commit();
    EnableHistoryButtons();
}

void frmThemeMorpho::Slider_Scroll() {
    sliders_.ShowValuesNow();
    UpdateColourBand();
}

void frmThemeMorpho::Slider_Change() {
    sliders_.ShowValues();
    ProcessSelection(false);
}

void frmThemeMorpho::cmdApply_Click() {
    if (!sliders_.Adjustment().IsNeutral()) ProcessSelection(true);
}

void frmThemeMorpho::ProcessSelection(bool commit) {
    if (busySwitch_.Busy()) return;
    const BusySwitch::Guard busy(busySwitch_);
    if (elements_.SelectedCount() == 0) {
        MsgBox(kNothingSelected, kOkOnly | kInformationIcon, kThemeProduct);
        ResetSliders();
        return;
    }
    WriteLog("Processing selection ( " + std::to_string(elements_.SelectedCount()) + " items )...");
    colorization_.RenderSelection(sliders_.Adjustment());
    if (commit) {
        ResetSliders();
        colorization_.Commit();
        EnableHistoryButtons();
    }
    WriteLog("Selection processed");
    preview_.GeneratePreview(false);
}

void frmThemeMorpho::cmdUndo_Click() {
    MoveInHistory("Undo", &Colorization::Undo);
}
void frmThemeMorpho::cmdRedo_Click() {
    MoveInHistory("Redo", &Colorization::Redo);
}

void frmThemeMorpho::MoveInHistory(const std::string& name, void (Colorization::*move)()) {
    WriteLog(name + " starts...");
    const HourglassPointer hourglass(*this);
    (colorization_.*move)();
    EnableHistoryButtons();
    preview_.RefreshPictures();
    ResetSliders();
    WriteLog(name + " over");
}

void frmThemeMorpho::cmdReset_Click() {
    WriteLog("Reset starts...");
    colorization_.Reset();
    EnableHistoryButtons();
    WriteLog("Reset over");
    preview_.GeneratePreview(false);
    ResetSliders();
}

void frmThemeMorpho::BeginEditing() {
    ResetSliders();
    colorization_.Begin();
    EnableHistoryButtons();
}

void frmThemeMorpho::ResetSliders() {
    sliders_.MoveToNeutral();
    UpdateColourBand();
}

void frmThemeMorpho::UpdateColourBand() {
    band_.UpdateColourBand(sliders_.Adjustment());
}

void frmThemeMorpho::EnableHistoryButtons() {
    cmdUndo.SetEnabled(!history_.IsUndoEmpty());
    cmdRedo.SetEnabled(!history_.IsRedoEmpty());
}

}  // namespace morpho
