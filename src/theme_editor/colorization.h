#pragma once

#include "theme_editor/edit_history.h"
#include "theme_editor/element_list.h"
#include "theme_editor/element_renderer.h"

namespace morpho {

// Recolours the selected elements and moves through the history. The work copy always looks as if
// the steps of the history had just been run on the originals, whatever was undone before.
class Colorization {
  public:
    Colorization(ElementList& elements, EditHistory& history, ElementRenderer& renderer)
        : elements_(elements), history_(history), renderer_(renderer) {}

    // A theme has been loaded: no history, nothing modified.
    void Begin();
    // The loaded theme's work copy has steps that were not saved.
    bool Modified() const { return modified_; }
    void SetModified(bool modified) { modified_ = modified; }

    // Rewrites the pending step, or opens one, so that it does this to the selected elements.
    void RenderSelection(const ElementAdjustment& adjustment);
    // Seals the pending step and drops what could be redone.
    void Commit();

    // Each removes the top step or restores it, rebuilds the pictures that it changes and selects
    // their elements. Without such a step they do nothing.
    void Undo();
    void Redo();
    // Drops all steps, restores every picture and selects all elements.
    void Reset();

    // A step of the history changed the element, and its working copy shows it.
    bool IsRecoloured(int row) const;

  private:
    void RenderChanged(const HistoryStep& step);
    void SelectChanged(const HistoryStep& step);
    void RenderElement(int row);

    ElementList& elements_;
    EditHistory& history_;
    ElementRenderer& renderer_;
    bool modified_ = false;
};

}  // namespace morpho
