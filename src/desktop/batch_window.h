#pragma once

#include <string>

#include "desktop/request.h"
#include "forms/headless_toolkit.h"
#include "theme_editor/frm_theme_morpho.h"

namespace morpho {

// What a theme was saved as.
struct SavedTheme {
    std::string name;
    std::string title;
};

// A Theme Morpho window that a batch operates instead of a person, through the same controls.
// Throws CommandError where a person could not do something, or would see an error message.
class BatchWindow {
  public:
    // `toolkit` is the program's own.
    BatchWindow(const Program& program, HeadlessToolkit& toolkit);
    ~BatchWindow();
    BatchWindow(const BatchWindow&) = delete;
    BatchWindow& operator=(const BatchWindow&) = delete;

    // Picks the theme of this name (without regard to case).
    void OpenTheme(const std::string& name);
    void Take(const Step& step);
    // The Save button; the question whether to overwrite is answered yes.
    SavedTheme Save();
    // The Save As button and its dialog, filled in as `outcome` says.
    SavedTheme SaveAs(const Outcome& outcome);

    frmThemeMorpho& Window() { return window_; }

  private:
    void Select(const std::vector<std::string>& words);
    void SelectElement(const std::string& key);
    void Press(CommandButton& button);
    void Require(bool done, const std::string& refusal);
    void RefuseMessages();

    HeadlessToolkit& toolkit_;
    frmThemeMorpho window_;
    int quality_ = 75;
    std::size_t messagesSeen_ = 0;
};

}  // namespace morpho
