// Where the Image Morpho window and its controls stand.

#include <algorithm>

#include "image_editor/frm_image_morpho.h"

namespace morpho {

namespace {

constexpr int kMargin = 60;
constexpr int kBarThickness = 240;
constexpr int kCaptionHeight = 270;  // of a frame

void MoveTo(Control& control, int left, int top) {
    Rectangle place = control.Place();
    place.left = left;
    place.top = top;
    control.SetPlace(place);
}

// The length of the picture beyond the part of it that can be shown.
int Beyond(int picture, int shown) {
    return std::max(picture - shown, 0);
}

// Works in the range of the picture; a bar with nothing to do is hidden.
void SetBar(ScrollBar& bar, const Rectangle& place, int beyond, int shown) {
    bar.SetLimits({.maximum = beyond,
                   .smallChange = 20 * kTwipsPerPixel,
                   .largeChange = std::max(shown, kTwipsPerPixel)});
    bar.SetPlace(place);
    bar.SetEnabled(beyond > 0);
    bar.SetVisible(beyond > 0);
}

}  // namespace

void frmImageMorpho::Form_Resize() {
    if (State() == WindowState::kMinimized) return;
    picImage.SetVisible(false);
    KeepMinimumSize(kMinimumSize, kMaximizedSize);
    LayOut();
    picImage.SetVisible(true);
}

// From the bottom up; the picture gets what is left.
void frmImageMorpho::LayOut() {
    const auto [width, height] = Inner();
    const int inner = width - 2 * kMargin;
    const int statusTop = height - lblStatus.Place().height - kMargin / 2;
    const int menuTop = statusTop - kMargin / 2 - frameMenu.Place().height;
    const int parametersTop = menuTop - kMargin - frameParameters.Place().height;
    if (parametersTop <= kCaptionHeight + kBarThickness + 4 * kMargin) return;
    const int parametersWidth = inner - frameQF.Place().width - kMargin;
    lblStatus.SetPlace({kMargin + 15, statusTop, inner - 30, lblStatus.Place().height});
    frameMenu.SetPlace({kMargin, menuTop, inner, frameMenu.Place().height});
    // Close, About and Help stand at the right end.
    int left = inner;
    for (CommandButton* button : {&btnHelp, &btnAbout, &btnCancel}) {
        left -= button->Place().width;
        MoveTo(*button, left, 0);
        left -= kMargin;
    }
    frameParameters.SetPlace(
        {kMargin, parametersTop, parametersWidth, frameParameters.Place().height});
    MoveTo(frameQF, kMargin + parametersWidth + kMargin, parametersTop);
    LayOutParameters(parametersWidth);
    picFrame.SetPlace({kMargin, kMargin, inner, parametersTop - 2 * kMargin});
    LayOutPicture();
}

void frmImageMorpho::LayOutParameters(int width) {
    const int valueLeft = width - kMargin - lblHueValue.Place().width;
    for (Label* value : {&lblBrightnessValue, &lblSaturationValue, &lblHueValue})
        MoveTo(*value, valueLeft, value->Place().top);
    const int sliderWidth = valueLeft - kMargin - slHue.Place().left;
    for (Slider* slider : {&slBrightness, &slSaturation, &slHue})
        slider->SetWidth(sliderWidth);
    for (PictureBox* band : {&imgBand, &picBand})
        band->SetWidth(sliderWidth - 2 * (imgBand.Place().left - slHue.Place().left));
}

// A bar takes room, which may make the other one necessary.
void frmImageMorpho::LayOutPicture() {
    const Size picture = picImage.NaturalSize();
    const int roomWidth = picFrame.Place().width - 2 * kMargin;
    const int roomHeight = picFrame.Place().height - kCaptionHeight - kMargin;
    Size shown{roomWidth, roomHeight};
    for (int pass = 0; pass < 2; ++pass) {
        if (picture.width > shown.width) shown.height = roomHeight - kBarThickness;
        if (picture.height > shown.height) shown.width = roomWidth - kBarThickness;
    }
    picHideIt.SetPlace({kMargin, kCaptionHeight, shown.width, shown.height});
    const int right = kMargin + shown.width;
    const int bottom = kCaptionHeight + shown.height;
    SetBar(hs, {kMargin, bottom, shown.width, kBarThickness}, Beyond(picture.width, shown.width),
           shown.width);
    SetBar(vs, {right, kCaptionHeight, kBarThickness, shown.height},
           Beyond(picture.height, shown.height), shown.height);
    Pan();
}

void frmImageMorpho::Pan() {
    const Size picture = picImage.NaturalSize();
    picImage.SetPlace({-hs.Value(), -vs.Value(), picture.width, picture.height});
}

}  // namespace morpho
