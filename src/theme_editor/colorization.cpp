#include "theme_editor/colorization.h"

#include <algorithm>

namespace morpho {

namespace {

bool Changes(const HistoryStep& step, int row) {
    return !step.at(static_cast<std::size_t>(row)).IsNeutral();
}

}  // namespace

void Colorization::Begin() {
    history_.Clear();
    modified_ = false;
}

void Colorization::RenderSelection(const ElementAdjustment& adjustment) {
    if (!history_.HasPendingStep()) {
        history_.PushUndoStep();
        renderer_.AskQualityAgain();
    }
    for (int row = 0; row < elements_.Count(); ++row) {
        const bool selected = elements_.IsSelected(row);
        // While a thumb is held at neutral, an element that the pending step recoloured can be
        // deselected: its picture has to lose that colour.
        const bool losesColour = !selected && !history_.GetUndoRecord(row).IsNeutral();
        history_.SetUndoRecord(row, selected ? adjustment : ElementAdjustment{});
        if (selected || losesColour) RenderElement(row);
    }
}

void Colorization::Commit() {
    history_.SealStep();
    history_.ClearRedo();
}

void Colorization::Undo() {
    if (history_.IsUndoEmpty()) return;
    const HistoryStep step = history_.Undo();
    RenderChanged(step);
    SelectChanged(step);
}

void Colorization::Redo() {
    if (history_.IsRedoEmpty()) return;
    const HistoryStep step = history_.Redo();
    SelectChanged(step);
    RenderChanged(step);
}

void Colorization::Reset() {
    history_.Clear();
    for (int row = 0; row < elements_.Count(); ++row) {
        elements_.Select(row, true);
        RenderElement(row);
    }
}

void Colorization::RenderChanged(const HistoryStep& step) {
    for (int row = 0; row < elements_.Count(); ++row) {
        if (Changes(step, row)) RenderElement(row);
    }
}

void Colorization::SelectChanged(const HistoryStep& step) {
    for (int row = 0; row < elements_.Count(); ++row)
        elements_.Select(row, Changes(step, row));
}

void Colorization::RenderElement(int row) {
    if (renderer_.RenderElement(row)) modified_ = true;
}

bool Colorization::IsRecoloured(int row) const {
    if (renderer_.Failures().contains(row)) return false;
    const std::vector<HistoryStep>& steps = history_.UndoSteps();
    return std::any_of(steps.begin(), steps.end(),
                       [row](const HistoryStep& step) { return Changes(step, row); });
}

}  // namespace morpho
