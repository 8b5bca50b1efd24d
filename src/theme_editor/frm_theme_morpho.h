#pragma once

#include <string>

#include "editing/adjustment_sliders.h"
#include "editing/colour_band.h"
#include "editing/editor_window.h"
#include "forms/controls.h"
#include "forms/lists.h"
#include "theme_editor/busy_switch.h"
#include "theme_editor/colorization.h"
#include "theme_editor/element_selection.h"
#include "theme_editor/theme_loader.h"
#include "theme_editor/theme_preview.h"
#include "theme_editor/theme_product.h"
#include "theme_editor/theme_saver.h"

namespace morpho {

// The Theme Morpho window: recolours the graphics of a theme of the open web. The controls stand
// here in tab order; what they do is done by the classes below them.
class frmThemeMorpho : public EditorWindow {
  public:
    explicit frmThemeMorpho(const Program& program);

    static constexpr Size kMinimumSize{11820, 6000};

    Label lblTheme{*this, {"lblTheme", {45, 75, 2880, 195}, "&Theme:"}};
    ComboBox cmbThemeLabel{
        *this, {"cmbThemeLabel", {30, 285, 2910, 315}, {}, "Select a web theme", "Theme"}, [this] {
            cmbThemeLabel_Click();
        }};
    // The names behind the labels, at the same index; never shown.
    ComboBox cmbThemeName{
        *this, {"cmbThemeName", {30, 285, 2910, 315}}, [this] { cmbThemeName_Click(); }};

    Frame frameImageList{*this, {"frameImageList", {30, 660, 2910, 4000}, "Images"}};
    CheckListBox lstImageNames{frameImageList,
                               {"lstImageNames",
                                {30, 300, 2850, 3565},
                                {},
                                "Images available for the selected theme",
                                "Images"},
                               [this](int index) { lstImageNames_ItemCheck(index); }};
    ListBox lstGifNames{frameImageList, {"lstGifNames", {30, 300, 2850, 3565}}};

    Frame frameImageListControl{*this, {"frameImageListControl", {30, 7000, 2910, 960}}};
    CommandButton cmdSelectAll{
        frameImageListControl,
        {"cmdSelectAll", {0, 60, 1425, 375}, "Se&lect All", "Select all the images of the theme"},
        [this] { cmdSelectAll_Click(); }};
    CommandButton cmdSelectNone{frameImageListControl,
                                {"cmdSelectNone",
                                 {1485, 60, 1425, 375},
                                 "Select &None",
                                 "Deselect all the images of the theme"},
                                [this] { cmdSelectNone_Click(); }};
    CommandButton cmdSelectActive{frameImageListControl,
                                  {"cmdSelectActive",
                                   {0, 495, 1425, 375},
                                   "Select Act&ive",
                                   "Select the active images of the theme"},
                                  [this] { cmdSelectActive_Click(); }};
    CommandButton cmdSelectNormal{frameImageListControl,
                                  {"cmdSelectNormal",
                                   {1485, 495, 1425, 375},
                                   "Select Nor&mal",
                                   "Select the normal images of the theme"},
                                  [this] { cmdSelectNormal_Click(); }};

    Frame framePreview{*this,
                       {"framePreview", {2955, 60, 11415, 5000}, "Preview:", "Theme preview"}};
    PictureBox picPreview{framePreview, {"picPreview", {30, 330, 11355, 4580}}};
    WebBrowser wbbImagePreview{framePreview,
                               {"wbbImagePreview", {30, 330, 11355, 4580}, {}, {}, "Preview"}};

    Frame frameProcess{*this, {"frameProcess", {2955, 7000, 8580, 1890}}};
    Label lblBrightness{frameProcess, {"lblBrightness", {60, 150, 1020, 225}, "Bri&ghtness:"}};
    Slider sldBrightness{frameProcess,
                         {"sldBrightness",
                          {1080, 75, 5865, 375},
                          {},
                          "Change brightness of the selected images",
                          "Brightness"},
                         AdjustmentSliders::kFactorRange,
                         [this] { Slider_Scroll(); },
                         [this] { Slider_Change(); }};
    Label lblBVal{frameProcess, {"lblBVal", {6990, 150, 510, 225}, "100 %"}, Alignment::kRight};
    Label lblSaturation{frameProcess, {"lblSaturation", {60, 555, 1020, 225}, "Saturati&on:"}};
    Slider sldSaturation{frameProcess,
                         {"sldSaturation",
                          {1080, 480, 5865, 375},
                          {},
                          "Change saturation of the selected images",
                          "Saturation"},
                         AdjustmentSliders::kFactorRange,
                         [this] { Slider_Scroll(); },
                         [this] { Slider_Change(); }};
    Label lblSVal{frameProcess, {"lblSVal", {6990, 555, 510, 225}, "100 %"}, Alignment::kRight};
    Label lblHue{frameProcess, {"lblHue", {60, 960, 1020, 225}, "&Hue:"}};
    Slider sldHue{
        frameProcess,
        {"sldHue", {1080, 885, 5865, 375}, {}, "Change hue of the selected images", "Hue"},
        AdjustmentSliders::kHueRange,
        [this] { Slider_Scroll(); },
        [this] { Slider_Change(); }};
    Label lblHVal{frameProcess, {"lblHVal", {6990, 960, 510, 225}, "0"}, Alignment::kRight};
    Label lblBand{frameProcess, {"lblBand", {60, 1320, 1020, 195}, "Original:"}};
    PictureBox imgBand{
        frameProcess, {"imgBand", {1095, 1365, 5835, 105}, {}, "Original color band"}, true};
    Label lblProcessedBand{frameProcess, {"lblProcessedBand", {60, 1560, 1020, 195}, "Processed:"}};
    PictureBox picBand{
        frameProcess, {"picBand", {1095, 1605, 5835, 105}, {}, "Processed color band"}, true};
    CommandButton cmdApply{frameProcess,
                           {"cmdApply",
                            {7620, 75, 960, 375},
                            "&Apply",
                            "Apply the changes to the selected images and update the preview"},
                           [this] { cmdApply_Click(); }};
    CommandButton cmdUndo{frameProcess,
                          {"cmdUndo", {7620, 510, 960, 375}, "&Undo", "Undo "},
                          [this] { cmdUndo_Click(); },
                          ButtonRole::kNone,
                          Ctrl('Z')};
    CommandButton cmdRedo{frameProcess,
                          {"cmdRedo", {7620, 945, 960, 375}, "&Redo", "Redo"},
                          [this] { cmdRedo_Click(); },
                          ButtonRole::kNone,
                          Ctrl('Y')};
    CommandButton cmdReset{frameProcess,
                           {"cmdReset",
                            {7620, 1380, 960, 375},
                            "R&eset",
                            "Restore all the original images of the theme"},
                           [this] { cmdReset_Click(); }};

    Label lblStatus{*this, {"lblStatus", {45, 9000, 2880, 225}}};
    Frame frameMenu{*this, {"frameMenu", {2955, 9000, 8580, 495}}};
    CommandButton cmdSave{frameMenu,
                          {"cmdSave", {0, 60, 1275, 375}, "&Save", "Save the theme"},
                          [this] { cmdSave_Click(); },
                          ButtonRole::kNone,
                          Ctrl('S')};
    CommandButton cmdSaveAs{
        frameMenu,
        {"cmdSaveAs", {1335, 60, 1275, 375}, "Sa&ve As...", "Save the theme as another theme"},
        [this] { cmdSaveAs_Click(); }};
    CommandButton cmdCancel{frameMenu,
                            {"cmdCancel", {4635, 60, 1275, 375}, "&Close", "Close Theme Morpho"},
                            [this] { cmdCancel_Click(); }};
    CommandButton btnAbout{frameMenu,
                           {"btnAbout", {5970, 60, 1275, 375}, "A&bout...", "About Theme Morpho"},
                           [this] { btnAbout_Click(); }};
    CommandButton btnHelp{frameMenu,
                          {"btnHelp", {7305, 60, 1275, 375}, "Hel&p", "Help"},
                          [this] { btnHelp_Click(); },
                          ButtonRole::kNone,
                          FunctionKey(1)};
    Timer timer{*this, "timer", 50, [this] { timer.SetEnabled(false); }};

    // What a batch reads after it has worked the controls.
    const ElementList& Elements() const { return elements_; }
    const EditHistory& History() const { return history_; }
    ElementRenderer& Renderer() { return renderer_; }
    bool IsRecoloured(int row) const { return colorization_.IsRecoloured(row); }
    // The work copy of the loaded theme, without a trailing "\".
    std::string WorkFolder() const;
    // What ended the last theme load; empty when it went well.
    const std::string& LoadFailure() const { return loadFailure_; }
    // How the last save ended.
    const SaveOutcome& LastSave() const { return lastSave_; }

  protected:
    void Form_Load() override;
    void Form_Paint() override;
    void Form_QueryUnload(bool& cancel, bool byUser) override;
    void Form_Resize() override;

  private:
    void cmbThemeLabel_Click();
    void cmbThemeName_Click();
    void lstImageNames_ItemCheck(int index);
    void cmdSelectAll_Click();
    void cmdSelectNone_Click();
    void cmdSelectActive_Click();
    void cmdSelectNormal_Click();
    void Slider_Scroll();
    void Slider_Change();
    void cmdApply_Click();
    void cmdUndo_Click();
    void cmdRedo_Click();
    void cmdReset_Click();
    void cmdSave_Click();
    void cmdSaveAs_Click();
    void cmdCancel_Click();
    void btnAbout_Click();
    void btnHelp_Click();

    // Start-up, in the order in which it runs.
    void StartUp();
    void FindFolders();
    void ListThemes();
    void OpenFirstTheme();
    void StartUpFailed(const RunTimeError* error);

    void LoadCurrentTheme();
    void LoadFailed(const std::string& name);
    // Enables, or disables, what works on a loaded theme.
    void EnableThemeControls(bool enabled);
    // Shows an entry as the current theme, or none, without loading anything.
    void ShowCurrentTheme(int index);
    // Shows the text in the status line; an empty one clears it.
    void ShowLoadFailure(const std::string& text);
    // Asks what to do with unsaved changes; false when the person, or a failed save, wants to stay.
    bool MayLeaveTheme(bool closing);
    // Saves the loaded theme under its own name and label.
    bool SaveLoadedTheme(bool applyFlag);
    LoadedTheme Loaded() const;
    // Updates the window after a save; returns whether the theme was saved.
    bool Saved(SaveOutcome outcome);
    void DeleteWorkFolder();
    void LayOut();
    void ShowQuickReference();

    // Lets the two lists show the elements.
    void ShowElements();
    // Explains that elements of one image are selected together; returns whether to show it again.
    bool ShowDuplicateNotice();
    // The person has changed the selection: while the sliders are off neutral, that ends the
    // pending step.
    void SelectionTouched();

    // Recolours the selected elements with the sliders' values; `commit` seals the step.
    void ProcessSelection(bool commit);
    // `name` is what the log calls it, "Undo" or "Redo".
    void MoveInHistory(const std::string& name, void (Colorization::*move)());
    // A theme has been loaded: no history, neutral sliders, nothing modified.
    void BeginEditing();
    // Puts the sliders and the band back to neutral without recolouring anything.
    void ResetSliders();
    void UpdateColourBand();
    void EnableHistoryButtons();

    std::string WorkRoot() const { return tempPath_ + "Morpho"; }

    std::string tempPath_;         // with a trailing "\"
    std::string fpThemeTempPath_;  // where the host unpacks themes, with a trailing "\"
    int currentThemeIndex_ = kNoEntry;
    bool firstPaint_ = false;
    bool loading_ = false;
    bool revertingCombo_ = false;
    std::string loadFailure_;
    SaveOutcome lastSave_;

    ElementList elements_;
    EditHistory history_;
    AdjustmentSliders sliders_{
        {sldBrightness, lblBVal}, {sldSaturation, lblSVal}, {sldHue, lblHVal}};
    BusySwitch busySwitch_{
        *this, {&frameImageList, &frameImageListControl, &frameMenu, &framePreview, &frameProcess}};
    ColourBand band_;
    ElementRenderer renderer_;
    ThemePreview preview_;
    ThemeLoader loader_;
    ElementSelection selection_;
    Colorization colorization_{elements_, history_, renderer_};
    ThemeSaver saver_;
};

}  // namespace morpho
