#include "theme_editor/edit_history.h"

#include <limits>

#include "platform/run_time_error.h"

namespace morpho {

void EditHistory::Steps::Push() {
    if (Depth() == std::numeric_limits<std::int16_t>::max()) {
        throw RunTimeError(ErrorNumber::kOverflow, "Overflow");
    }
    steps_.emplace_back();
}

void EditHistory::Steps::Pop() {
    if (!steps_.empty()) steps_.pop_back();
}

void EditHistory::Steps::SetTop(int row, const ElementAdjustment& record) {
    if (!steps_.empty()) steps_.back().at(static_cast<std::size_t>(row)) = record;
}

std::optional<ElementAdjustment> EditHistory::Steps::At(int row, int step) const {
    if (step < 1 || step > Depth()) return std::nullopt;
    return steps_[static_cast<std::size_t>(step) - 1].at(static_cast<std::size_t>(row));
}

void EditHistory::SetUndoRecord(int row, double brightness, double hue, double saturation) {
    undo_.SetTop(row, {saturation, hue, brightness});
}

void EditHistory::SetRedoRecord(int row, double brightness, double hue, double saturation) {
    redo_.SetTop(row, {saturation, hue, brightness});
}

std::optional<ElementAdjustment> EditHistory::GetUndoRecord(int row) const {
    return undo_.At(row, UndoDepth());
}

std::optional<ElementAdjustment> EditHistory::GetRedoRecord(int row) const {
    return redo_.At(row, RedoDepth());
}

std::optional<ElementAdjustment> EditHistory::GetUndoRecordAt(int row, int step) const {
    return undo_.At(row, step);
}

}  // namespace morpho
