#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "theme_editor/catalogue.h"

namespace morpho {

// What one history step does to one element. Saturation and Brightness are factors (0 to 4), Hue is
// in degrees (-180 to 180).
struct ElementAdjustment {
    double Saturation = 1.0;
    double Hue = 0.0;
    double Brightness = 1.0;

    bool IsNeutral() const { return Brightness == 1.0 && Saturation == 1.0 && Hue == 0.0; }
};

// The steps that can be undone and those that can be redone. A step holds a record for each
// element's row (0 to 40); steps count from 1, the top one is the most recent. There are no
// pictures in it: every picture is computed anew from its original.
class EditHistory {
  public:
    // Opens a step of neutral records. Throws kOverflow beyond 32767 steps.
    void PushUndoStep() { undo_.Push(); }
    void PushRedoStep() { redo_.Push(); }
    // Drops the top step; does nothing when there is none.
    void PopUndoStep() { undo_.Pop(); }
    void PopRedoStep() { redo_.Pop(); }
    void ClearUndo() { undo_.Clear(); }
    void ClearRedo() { redo_.Clear(); }

    // The row's record in the top step.
    void SetUndoRecord(int row, double brightness, double hue, double saturation);
    void SetRedoRecord(int row, double brightness, double hue, double saturation);
    // Nothing when there is no step.
    std::optional<ElementAdjustment> GetUndoRecord(int row) const;
    std::optional<ElementAdjustment> GetRedoRecord(int row) const;
    // Nothing when `step` is not between 1 and UndoDepth.
    std::optional<ElementAdjustment> GetUndoRecordAt(int row, int step) const;

    std::int16_t UndoDepth() const { return undo_.Depth(); }
    std::int16_t RedoDepth() const { return redo_.Depth(); }
    bool IsUndoEmpty() const { return UndoDepth() == 0; }
    bool IsRedoEmpty() const { return RedoDepth() == 0; }

  private:
    class Steps {
      public:
        void Push();
        void Pop();
        void Clear() { steps_.clear(); }
        std::int16_t Depth() const { return static_cast<std::int16_t>(steps_.size()); }
        void SetTop(int row, const ElementAdjustment& record);
        std::optional<ElementAdjustment> At(int row, int step) const;

      private:
        std::vector<std::array<ElementAdjustment, kMaxElements>> steps_;
    };

    Steps undo_;
    Steps redo_;
};

}  // namespace morpho
