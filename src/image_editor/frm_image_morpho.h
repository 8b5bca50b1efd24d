#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "editing/adjustment_sliders.h"
#include "editing/colour_band.h"
#include "editing/editor_window.h"
#include "forms/controls.h"
#include "forms/text_box.h"
#include "image_editor/edited_image.h"
#include "image_editor/image_location.h"
#include "image_editor/quality_factor.h"

namespace morpho {

class frmWebOpen;

// The Image Morpho window: recolours one picture, that which is selected in the page or one that
// the person opens. The controls stand here in tab order.
class frmImageMorpho : public EditorWindow {
  public:
    explicit frmImageMorpho(const Program& program);

    static constexpr Size kMinimumSize{8865, 7320};
    // A maximized window is refused below this size only.
    static constexpr Size kMaximizedSize{8865, 6855};

    Frame picFrame{*this, {"picFrame", {60, 60, 8880, 4200}, "Image"}};
    // Hides what of the picture is beyond the part that is shown.
    Frame picHideIt{picFrame, {"picHideIt", {60, 270, 8520, 3600}}};
    PictureBox picImage{picHideIt, {"picImage", {0, 0, 0, 0}, {}, {}, "Image"}};
    ScrollBar hs{picFrame,
                 {"hs", {60, 3900, 8520, 240}, {}, {}, "Move the image sideways"},
                 ScrollBar::Shape::kHorizontal,
                 [this] { Pan(); }};
    ScrollBar vs{picFrame,
                 {"vs", {8610, 270, 240, 3600}, {}, {}, "Move the image up and down"},
                 ScrollBar::Shape::kVertical,
                 [this] { Pan(); }};

    Frame frameParameters{*this, {"frameParameters", {60, 4320, 7320, 1770}}};
    Label lblBrightnessText{frameParameters,
                            {"lblBrightnessText", {60, 150, 1080, 225}, "&Brightness:"}};
    Slider slBrightness{
        frameParameters,
        {"slBrightness", {1140, 75, 5490, 375}, {}, "Change brightness of the image", "Brightness"},
        AdjustmentSliders::kFactorRange,
        [this] { Slider_Scroll(); },
        [this] { Slider_Change(); }};
    Label lblBrightnessValue{
        frameParameters, {"lblBrightnessValue", {6690, 150, 570, 225}, "100 %"}, Alignment::kRight};
    Label lblSaturationText{frameParameters,
                            {"lblSaturationText", {60, 555, 1080, 225}, "Sa&turation:"}};
    Slider slSaturation{frameParameters,
                        {"slSaturation",
                         {1140, 480, 5490, 375},
                         {},
                         "Change saturation of the image",
                         "Saturation"},
                        AdjustmentSliders::kFactorRange,
                        [this] { Slider_Scroll(); },
                        [this] { Slider_Change(); }};
    Label lblSaturationValue{
        frameParameters, {"lblSaturationValue", {6690, 555, 570, 225}, "100 %"}, Alignment::kRight};
    Label lblHueText{frameParameters, {"lblHueText", {60, 960, 1080, 225}, "H&ue:"}};
    Slider slHue{frameParameters,
                 {"slHue", {1140, 885, 5490, 375}, {}, "Change hue of the image", "Hue"},
                 AdjustmentSliders::kHueRange,
                 [this] { Slider_Scroll(); },
                 [this] { Slider_Change(); }};
    Label lblHueValue{
        frameParameters, {"lblHueValue", {6690, 960, 570, 225}, "0"}, Alignment::kRight};
    PictureBox imgBand{
        frameParameters, {"imgBand", {1155, 1365, 5460, 105}, {}, "Original color band"}, true};
    PictureBox picBand{
        frameParameters, {"picBand", {1155, 1560, 5460, 105}, {}, "Processed color band"}, true};

    Frame frameQF{*this, {"frameQF", {7440, 4320, 1500, 1770}, "Quality Factor"}};
    TextBox txtQF{
        frameQF,
        {"txtQF", {240, 480, 600, 315}, {}, "JPEG Quality Factor ( 1 - 100 )", "Quality Factor"},
        TextBox::Kind::kSingleLine,
        [this](char32_t& key) { quality_.txtQF_KeyPress(key); },
        [this] { quality_.txtQF_Change(); }};
    ScrollBar vsQF{frameQF,
                   {"vsQF", {855, 480, 255, 315}, {}, {}, "Raise or lower the quality factor"},
                   kQualityMinimum,
                   kQualityMaximum,
                   kInitialQuality,
                   [this] { quality_.vsQF_Change(); }};

    Frame frameMenu{*this, {"frameMenu", {60, 6150, 8880, 375}}};
    CommandButton btnOpen{frameMenu,
                          {"btnOpen", {0, 0, 1140, 375}, "&Open...", "Open a new image"},
                          [this] { btnOpen_Click(); },
                          ButtonRole::kNone,
                          Ctrl('O')};
    CommandButton btnSave{frameMenu,
                          {"btnSave", {1200, 0, 1140, 375}, "&Save", "Save the image"},
                          [this] { btnSave_Click(); },
                          ButtonRole::kNone,
                          Ctrl('S')};
    CommandButton btnSaveAs{
        frameMenu,
        {"btnSaveAs", {2400, 0, 1140, 375}, "Save &as...", "Save image as another image"},
        [this] { btnSaveAs_Click(); }};
    CommandButton btnReset{
        frameMenu,
        {"btnReset", {3600, 0, 1140, 375}, "&Reset", "Reset the image to original image"},
        [this] { btnReset_Click(); }};
    CommandButton btnCancel{frameMenu,
                            {"btnCancel", {5340, 0, 1140, 375}, "&Close", "Close Image Morpho"},
                            [this] { Unload(); }};
    CommandButton btnAbout{frameMenu,
                           {"btnAbout", {6540, 0, 1140, 375}, "About...", "About"},
                           [this] { ShowAboutBox(); }};
    CommandButton btnHelp{frameMenu,
                          {"btnHelp", {7740, 0, 1140, 375}, "Hel&p", "Help"},
                          [this] { OpenHelp(); },
                          ButtonRole::kNone,
                          FunctionKey(1)};
    Label lblStatus{*this, {"lblStatus", {75, 6570, 8850, 225}}};

    // Opens this picture when the window has been loaded, in place of the selected one. To be set
    // before the window is loaded.
    void OpenAtStart(ImageLocation image) { atStart_ = std::move(image); }
    // Opens a picture in place of the one that is open, without asking. Tells the person when the
    // host cannot fetch it; throws RunTimeError when it cannot be opened otherwise. No picture is
    // open then.
    void OpenImage(const ImageLocation& image);
    // Recolourings since the picture was opened or last saved; 1 and more mean modified.
    std::int32_t ChangeCount() const { return changeCount_; }
    const EditedImage& Image() const { return image_; }
    // What ended the last handler too early; empty when nothing did.
    const std::string& Failure() const { return lblStatus.Caption(); }

  protected:
    void Form_Load() override;
    void Form_QueryUnload(bool& cancel, bool byUser) override;
    void Form_Resize() override;
    void TellError(std::string_view handler, const RunTimeError& error) override;

  private:
    void btnOpen_Click();
    void btnSave_Click();
    void btnSaveAs_Click();
    void btnReset_Click();
    void Slider_Scroll();
    void Slider_Change();

    void FindSelectedImage();
    void CloseImage();
    std::optional<ImageLocation> ChooseImageToOpen();
    void ProcessImage();
    void ApplySliders();
    void UpdateColourBand();
    void ResetSliders();
    // False when the picture could not be saved; the reason is logged and shown.
    bool SaveImage(const std::optional<ImageLocation>& place = {});
    std::optional<ImageLocation> SaveImageAsWeb();
    std::optional<ImageLocation> SaveImageAsDisk();
    void EnableImageButtons();
    void UpdateCaption();

    // What came of the question whether to save an unsaved picture.
    enum class Offer { kDone, kCancelled, kSaveFailed };
    // Asks it, and saves the picture if so wished.
    Offer OfferToSave();
    // Each shows a dialog with the filters for pictures; nothing when the person cancelled.
    std::optional<ImageLocation> ChooseInWeb(frmWebOpen& dialog);
    std::optional<ImageLocation> ChooseOnDisk(FileDialog request);
    // The picture has been saved: closes the window and lets the host show the picture.
    void LeaveSaved();
    bool IsWebOpen() const;
    void ShowWorkingCopy();
    void ShowStatus(const std::string& text);
    void LayOut();
    void LayOutParameters(int width);
    void LayOutPicture();
    // Shows the part of the picture that the scroll bars say.
    void Pan();

    std::optional<ImageLocation> atStart_;
    EditedImage image_;
    std::int32_t changeCount_ = 0;
    AdjustmentSliders sliders_{{slBrightness, lblBrightnessValue},
                               {slSaturation, lblSaturationValue},
                               {slHue, lblHueValue}};
    ColourBand band_;
    QualityFactor quality_{txtQF, vsQF, [this] { return frameQF.Visible(); }};
};

}  // namespace morpho
