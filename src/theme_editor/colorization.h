#pragma once

#include "forms/controls.h"
#include "shared/component.h"
#include "theme_editor/adjustment_sliders.h"
#include "theme_editor/busy_switch.h"
#include "theme_editor/colour_band.h"
#include "theme_editor/edit_history.h"
#include "theme_editor/element_renderer.h"
#include "theme_editor/element_selection.h"
#include "theme_editor/theme_preview.h"

namespace morpho {

// What Colorization works with; all of it belongs to the window.
struct ColorizationParts {
    Form& form;
    BusySwitch& busySwitch;
    ElementList& elements;
    ElementSelection& selection;
    EditHistory& history;
    ElementRenderer& renderer;
    AdjustmentSliders& sliders;
    ColourBand& band;
    ThemePreview& preview;
    CommandButton& cmdUndo;
    CommandButton& cmdRedo;
};

// Recolours the ticked elements and moves through the history. A slider that settles keeps
// rewriting the pending top step, Apply seals it, and the next change opens a new one.
class Colorization {
  public:
    Colorization(const Program& program, const ColorizationParts& parts)
        : program_(program), parts_(parts) {}

    // A theme has been loaded: no history, neutral sliders, nothing modified.
    void Begin();
    // The loaded theme's work copy has steps that were not saved.
    bool Modified() const { return modified_; }
    void SetModified(bool modified) { modified_ = modified; }

    // Recolours the ticked elements with the sliders' values; `commit` seals the step.
    void ProcessSelection(bool commit);
    void Undo();
    void Redo();
    void Reset();

    // The ticked elements changed: while the sliders are off neutral, that ends the pending step.
    void SelectionTouched();
    // Puts the sliders and the band back to neutral without recolouring anything.
    void ResetSliders();
    // A step of the history changed the element, and its working copy shows it.
    bool IsRecoloured(int row) const;

  private:
    void OpenStepIfNeeded();
    void RenderSelection();
    void Render(int row);

    const Program program_;
    ColorizationParts parts_;
    bool modified_ = false;
    bool selectionChanged_ = false;  // the next processing opens a new step
    bool suppressProcessing_ = false;
};

}  // namespace morpho
