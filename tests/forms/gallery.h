#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/list_view.h"
#include "forms/lists.h"
#include "forms/option_button.h"
#include "forms/text_box.h"
#include "forms/tree_view.h"

namespace morpho::test {

// A window with a control of every kind but the browser, that remembers every event.
class Gallery : public Form {
  public:
    explicit Gallery(Toolkit& toolkit)
        : Form(toolkit, {"frmGallery", "Gallery", kMinimum, BorderStyle::kSizable, kMinimum}) {
        for (const char* const theme : {"Arctic", "Tom & Jerry", "Ärger"})
            cmbTheme.AddItem(theme);
        for (const char* const entry : {"one", "two", "three"})
            lstPlain.AddItem(entry);
        for (int i = 0; i < 30; ++i)
            lstNames.AddItem("active/image-" + std::to_string(i));
        txtGuide.SetTextQuietly("Step 1: pick <b>elements</b>.\r\n\r\nStep 2: move the sliders.");
        cmdOff.SetEnabled(false);
        root = &tvFolders.AddNode(nullptr, {"web", "ClosedFolder", "OpenFolder", true});
        for (const char* const folder : {"images", "_private", "Docs"})
            tvFolders.AddNode(root, {folder, "ClosedFolder", "OpenFolder"});
        for (const auto& [name, type] : {std::pair("a.gif", "GIF"), std::pair("b.jpg", "JPG")})
            lvFiles.AddRow({name, "Image", {type}});
        hsPan.SetLimits({0, 400, 15, 150});
        vsPan.SetLimits({0, 400, 15, 150});
    }

    static constexpr Size kMinimum{11820, 6000};
    TreeNode* root;

    // What was raised, in order, and what is done in answer to each event.
    std::vector<std::string> events;
    std::function<void()> answer;
    bool refuseClosing = false;
    std::vector<std::string> failures;

    Frame fraPick{*this, {"fraPick", {60, 60, 2775, 5400}, "&Elements", "What is recoloured"}};
    Label lblTheme{fraPick, {"lblTheme", {120, 270, 2500, 210}, "&Theme & label:"}};
    ComboBox cmbTheme{
        fraPick, {"cmbTheme", {120, 480, 2535, 315}, {}, "Select a theme"}, On("cmbTheme_Click")};
    CheckListBox lstNames{fraPick,
                          {"lstNames", {120, 870, 2535, 3000}, {}, "Images of the theme"},
                          [this](int row) { On("lstNames_ItemCheck " + std::to_string(row))(); }};
    ListBox lstPlain{
        fraPick, {"lstPlain", {120, 3960, 2535, 900}, {}, {}, "Plain list"}, On("lstPlain_Click")};
    CheckBox chkApply{
        fraPick, {"chkApply", {120, 4950, 2535, 255}, "Appl&y to web"}, On("chkApply_Click")};

    Frame fraPreview{*this, {"fraPreview", {2910, 60, 8790, 3420}, "Preview:"}};
    Label lblView{fraPreview, {"lblView", {120, 300, 500, 210}, "View:"}};
    OptionButton optList{
        fraPreview, {"optList", {700, 270, 1000, 255}, "As &list"}, On("optList_Click")};
    OptionButton optReport{
        fraPreview, {"optReport", {1800, 270, 1200, 255}, "As &report"}, On("optReport_Click")};
    TreeView tvFolders{fraPreview,
                       {"tvFolders", {120, 600, 2000, 2700}, {}, {}, "Folders"},
                       [this](TreeNode& node) { On("tvFolders_NodeClick " + node.Text())(); }};
    ListView lvFiles{fraPreview,
                     {"lvFiles", {2200, 600, 2700, 2700}, {}, {}, "Files"},
                     {{"Name", 1800}, {"Type", 600}},
                     [this](int row) { On("lvFiles_ItemClick " + std::to_string(row))(); }};
    Frame fraView{fraPreview, {"fraView", {5000, 300, 3300, 2700}}};
    PictureBox picPanned{fraView, {"picPanned", {0, 0, 6000, 6000}}};
    ScrollBar hsPan{fraPreview,
                    {"hsPan", {5000, 3030, 3300, 255}, {}, {}, "Pan sideways"},
                    ScrollBar::Shape::kHorizontal,
                    On("hsPan_Change")};
    ScrollBar vsPan{fraPreview,
                    {"vsPan", {8330, 300, 255, 2700}, {}, {}, "Pan up and down"},
                    ScrollBar::Shape::kVertical,
                    On("vsPan_Change")};

    Frame fraProcess{*this, {"fraProcess", {2910, 3540, 8790, 1440}, "Colours"}};
    Label lblHue{fraProcess, {"lblHue", {120, 300, 960, 210}, "&Hue:"}};
    Slider sldHue{fraProcess,
                  {"sldHue", {1100, 240, 4000, 375}, {}, "Change hue"},
                  {-180, 180, 0, 1, 20, 30},
                  On("sldHue_Scroll"),
                  On("sldHue_Change")};
    Label lblQuality{fraProcess, {"lblQuality", {120, 780, 960, 210}, "&Quality:"}};
    TextBox txtQuality{fraProcess,
                       {"txtQuality", {1100, 720, 600, 315}, {}, "JPEG quality"},
                       TextBox::Kind::kSingleLine,
                       [](char32_t& key) {
                           if (key != 8 && (key < '0' || key > '9')) key = 0;
                       },
                       On("txtQuality_Change")};
    ScrollBar vsQuality{fraProcess, {"vsQuality", {1700, 720, 255, 315}, {}, {}, "Quality"},
                        0,          100,
                        75,         On("vsQuality_Change")};
    PictureBox picBand{fraProcess, {"picBand", {2200, 800, 3600, 105}}, true};
    PictureBox picOwnSize{fraProcess, {"picOwnSize", {5900, 700, 800, 500}}};
    TextBox txtGuide{fraProcess,
                     {"txtGuide", {6800, 240, 1900, 1080}, {}, {}, "Guide"},
                     TextBox::Kind::kMultiLineReadOnly};

    Frame fraMenu{*this, {"fraMenu", {2910, 5040, 8790, 420}}};
    Label lblLink{fraMenu,
                  {"lblLink", {60, 90, 1500, 210}, "www.example.com", "Visit us"},
                  Alignment::kLeft,
                  On("lblLink_Click")};
    CommandButton cmdApply{fraMenu,
                           {"cmdApply", {3000, 30, 1095, 345}, "&Apply", "Apply all"},
                           On("cmdApply_Click"),
                           ButtonRole::kDefault};
    CommandButton cmdUndo{fraMenu,
                          {"cmdUndo", {4150, 30, 1095, 345}, "Undo", "Undo "},
                          On("cmdUndo_Click"),
                          ButtonRole::kNone,
                          Ctrl('Z')};
    CommandButton cmdOff{fraMenu, {"cmdOff", {5300, 30, 1095, 345}, "Re&do"}, On("cmdOff_Click")};
    CommandButton cmdClose{fraMenu,
                           {"cmdClose", {7500, 30, 1095, 345}, "Close"},
                           [this] { Unload(); },
                           ButtonRole::kCancel};
    Timer timer{*this, "timer", 10, On("timer_Timer")};

  protected:
    void Form_Load() override { On("Form_Load")(); }
    void Form_Paint() override { On("Form_Paint")(); }
    void Form_Resize() override {
        On("Form_Resize")();
        Rectangle bounds = Bounds();
        bounds.width = std::max(bounds.width, kMinimum.width);
        bounds.height = std::max(bounds.height, kMinimum.height);
        if (State() == WindowState::kNormal) SetBounds(bounds);
    }
    void Form_QueryUnload(bool& cancel, bool byUser) override {
        On(byUser ? "Form_QueryUnload by user" : "Form_QueryUnload")();
        cancel = refuseClosing;
    }
    void HandlerFailed(std::string_view handler, const RunTimeError& error) override {
        failures.push_back(std::string(handler) + ": " + error.what());
    }

  private:
    Handler On(const std::string& event) {
        return [this, event] {
            events.push_back(event);
            const auto now = answer;  // which may set another one
            if (now) now();
        };
    }
};

}  // namespace morpho::test
