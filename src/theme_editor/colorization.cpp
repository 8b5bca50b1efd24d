#include "theme_editor/colorization.h"

#include <utility>

#include "shared/log.h"
#include "theme_editor/pointer_guard.h"
#include "theme_editor/product.h"

namespace morpho {

namespace {

constexpr std::string_view kNothingSelected =
    "No theme elements have been selected. Please select one or more elements to process.";

}  // namespace

void Colorization::Begin() {
    ResetSliders();
    parts_.history.ClearUndo();
    parts_.cmdUndo.SetEnabled(false);
    parts_.history.ClearRedo();
    parts_.cmdRedo.SetEnabled(false);
    modified_ = false;
    selectionChanged_ = true;
}

void Colorization::ProcessSelection(bool commit) {
    if (suppressProcessing_ || parts_.busySwitch.Busy()) return;
    if (commit && parts_.sliders.AreNeutral()) return;
    const BusySwitch::Guard busy(parts_.busySwitch);
    if (parts_.elements.Names().SelectedCount() == 0) {
        parts_.form.MsgBox(kNothingSelected, kOkOnly | kInformationIcon, kThemeProduct);
        if (!parts_.sliders.AreNeutral()) ResetSliders();
        return;
    }
    WriteLog(program_, "Processing selection ( " +
                           std::to_string(parts_.elements.Names().SelectedCount()) + " items )...");
    const HourglassPointer hourglass(parts_.form);
    OpenStepIfNeeded();
    RenderSelection();
    if (commit) {
        ResetSliders();
        selectionChanged_ = true;
        parts_.history.ClearRedo();
        parts_.cmdRedo.SetEnabled(false);
        parts_.cmdUndo.SetEnabled(true);
    }
    WriteLog(program_, "Selection processed");
    parts_.preview.GeneratePreview(false);
}

void Colorization::OpenStepIfNeeded() {
    if (!selectionChanged_) return;
    parts_.history.PushUndoStep();
    parts_.renderer.AskQualityAgain();
    selectionChanged_ = false;
}

void Colorization::RenderSelection() {
    const AdjustmentSliders& sliders = parts_.sliders;
    for (int row = 0; row < parts_.elements.Count(); ++row) {
        if (parts_.elements.Names().Selected(row)) {
            parts_.history.SetUndoRecord(row, sliders.Brightness(), sliders.Hue(),
                                         sliders.Saturation());
            Render(row);
        } else {
            parts_.history.SetUndoRecord(row, 1.0, 0.0, 1.0);
        }
    }
}

void Colorization::Render(int row) {
    if (parts_.renderer.RenderElement(row)) modified_ = true;
}

void Colorization::Undo() {
    WriteLog(program_, "Undo starts...");
    const HourglassPointer hourglass(parts_.form);
    EditHistory& history = parts_.history;
    history.PushRedoStep();
    for (int row = 0; row < parts_.elements.Count(); ++row) {
        const ElementAdjustment record = history.GetUndoRecord(row).value_or(ElementAdjustment{});
        history.SetRedoRecord(row, record.Brightness, record.Hue, record.Saturation);
    }
    history.PopUndoStep();
    {
        const ElementSelection::Quiet quiet(parts_.selection);
        for (int row = 0; row < parts_.elements.Count(); ++row) {
            const bool changed =
                !history.GetRedoRecord(row).value_or(ElementAdjustment{}).IsNeutral();
            if (changed) Render(row);
            parts_.elements.Names().SetSelected(row, changed);
        }
    }
    parts_.cmdUndo.SetEnabled(!history.IsUndoEmpty());
    parts_.cmdRedo.SetEnabled(true);
    parts_.preview.RefreshPictures();
    ResetSliders();
    parts_.form.SetPointer(MousePointer::kDefault);
    WriteLog(program_, "Undo over");
}

void Colorization::Redo() {
    WriteLog(program_, "Redo starts...");
    const HourglassPointer hourglass(parts_.form);
    EditHistory& history = parts_.history;
    history.PushUndoStep();
    for (int row = 0; row < parts_.elements.Count(); ++row) {
        const ElementAdjustment record = history.GetRedoRecord(row).value_or(ElementAdjustment{});
        history.SetUndoRecord(row, record.Brightness, record.Hue, record.Saturation);
    }
    history.PopRedoStep();
    {
        const ElementSelection::Quiet quiet(parts_.selection);
        for (int row = 0; row < parts_.elements.Count(); ++row) {
            const bool changed =
                !history.GetUndoRecord(row).value_or(ElementAdjustment{}).IsNeutral();
            parts_.elements.Names().SetSelected(row, changed);
            if (changed) Render(row);
        }
    }
    parts_.cmdRedo.SetEnabled(!history.IsRedoEmpty());
    parts_.cmdUndo.SetEnabled(true);
    parts_.preview.RefreshPictures();
    ResetSliders();
    parts_.form.SetPointer(MousePointer::kDefault);
    WriteLog(program_, "Redo over");
}

void Colorization::Reset() {
    WriteLog(program_, "Reset starts...");
    parts_.history.ClearUndo();
    parts_.history.ClearRedo();
    {
        const ElementSelection::Quiet quiet(parts_.selection);
        for (int row = 0; row < parts_.elements.Count(); ++row) {
            parts_.elements.Names().SetSelected(row, true);
            Render(row);
        }
    }
    parts_.cmdUndo.SetEnabled(false);
    parts_.cmdRedo.SetEnabled(false);
    selectionChanged_ = true;
    WriteLog(program_, "Reset over");
    parts_.preview.GeneratePreview(false);
    ResetSliders();
}

void Colorization::SelectionTouched() {
    if (parts_.sliders.AreNeutral()) return;
    selectionChanged_ = true;
    ResetSliders();
    parts_.history.ClearRedo();
    parts_.cmdRedo.SetEnabled(false);
    parts_.cmdUndo.SetEnabled(true);
}

void Colorization::ResetSliders() {
    const bool outer = std::exchange(suppressProcessing_, true);
    parts_.sliders.MoveToNeutral();
    parts_.band.UpdateColourBand();
    suppressProcessing_ = outer;
}

bool Colorization::IsRecoloured(int row) const {
    if (parts_.renderer.Failures().contains(row)) return false;
    for (int step = 1; step <= parts_.history.UndoDepth(); ++step) {
        if (!parts_.history.GetUndoRecordAt(row, step).value().IsNeutral()) return true;
    }
    return false;
}

}  // namespace morpho
