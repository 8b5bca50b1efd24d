#include "theme_editor/edit_history.h"

#include <limits>

#include "platform/run_time_error.h"

namespace morpho {

void EditHistory::Push(Steps& steps, const HistoryStep& step) {
    if (steps.size() == std::numeric_limits<std::int16_t>::max())
        throw RunTimeError(ErrorNumber::kOverflow, "Overflow");
    steps.push_back(step);
}

void EditHistory::PushUndoStep() {
    Push(undo_, {});
    pending_ = true;
}

const ElementAdjustment& EditHistory::GetUndoRecord(int row) const {
    return undo_.back().at(static_cast<std::size_t>(row));
}

void EditHistory::SetUndoRecord(int row, const ElementAdjustment& record) {
    undo_.back().at(static_cast<std::size_t>(row)) = record;
}

HistoryStep EditHistory::Move(Steps& from, Steps& to) {
    const HistoryStep step = from.back();
    Push(to, step);
    from.pop_back();
    pending_ = false;
    return step;
}

HistoryStep EditHistory::Undo() {
    return Move(undo_, redo_);
}

HistoryStep EditHistory::Redo() {
    return Move(redo_, undo_);
}

void EditHistory::Clear() {
    undo_.clear();
    redo_.clear();
    pending_ = false;
}

}  // namespace morpho
