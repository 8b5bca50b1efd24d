#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "editing/element_adjustment.h"
#include "theme_editor/catalogue.h"

namespace morpho {

// What one step does to each element, by row (0 to 40).
using HistoryStep = std::array<ElementAdjustment, kMaxElements>;

// The steps that can be undone and those that can be redone. The top undo step may be pending: the
// sliders keep rewriting it. There are no pictures in the history: every picture is computed anew
// from its original.
class EditHistory {
  public:
    // Opens a step of neutral records, which is pending. Throws kOverflow beyond 32767 steps.
    void PushUndoStep();
    bool HasPendingStep() const { return pending_; }
    // Seals the top step: the next change opens a new one.
    void SealStep() { pending_ = false; }

    // The row's record in the top undo step, which must exist.
    const ElementAdjustment& GetUndoRecord(int row) const;
    void SetUndoRecord(int row, const ElementAdjustment& record);

    // Moves the top step, pending or sealed, to the other side and returns it. It is sealed there,
    // and so is the step that is the top one now. There must be a step to move. Throws kOverflow
    // where the other side holds 32767 steps; nothing has moved then.
    HistoryStep Undo();
    HistoryStep Redo();

    void ClearRedo() { redo_.clear(); }
    void Clear();

    // The oldest step first.
    const std::vector<HistoryStep>& UndoSteps() const { return undo_; }
    std::int16_t UndoDepth() const { return static_cast<std::int16_t>(undo_.size()); }
    std::int16_t RedoDepth() const { return static_cast<std::int16_t>(redo_.size()); }
    bool IsUndoEmpty() const { return undo_.empty(); }
    bool IsRedoEmpty() const { return redo_.empty(); }

  private:
    using Steps = std::vector<HistoryStep>;

    static void Push(Steps& steps, const HistoryStep& step);
    HistoryStep Move(Steps& from, Steps& to);

    Steps undo_;
    Steps redo_;  // the most recently undone step last
    bool pending_ = false;
};

}  // namespace morpho
