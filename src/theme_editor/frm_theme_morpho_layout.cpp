// Where the Theme Morpho window and its controls stand.

#include "theme_editor/frm_theme_morpho.h"

namespace morpho {

namespace {

// Sets one measure of a control unless it would vanish; says whether it did.
bool Place(int value, Control& control, void (Control::*set)(int)) {
    if (value <= 0) return false;
    (control.*set)(value);
    return true;
}

}  // namespace

void frmThemeMorpho::Form_Resize() {
    if (State() == WindowState::kMinimized) return;
    KeepMinimumSize(kMinimumSize, kMinimumSize);
    LayOut();
}

void frmThemeMorpho::LayOut() {
    const auto top = [](int value, Control& control) {
        return Place(value, control, &Control::SetTop);
    };
    const auto width = [](int value, Control& control) {
        return Place(value, control, &Control::SetWidth);
    };
    const auto height = [](int value, Control& control) {
        return Place(value, control, &Control::SetHeight);
    };
    const auto [innerWidth, innerHeight] = Inner();
    const int menuHeight = frameMenu.Place().height;

    // The first measure that would not be positive ends the layout: the rest keeps its place.
    if (innerHeight - lblStatus.Place().height <= 0) return;
    top(innerHeight - menuHeight - 60 - frameImageListControl.Place().height,
        frameImageListControl) &&
        height(frameImageListControl.Place().top - frameImageList.Place().top - 60,
               frameImageList) &&
        height(frameImageList.Place().height - 435, lstImageNames) &&
        top(innerHeight - menuHeight - 30, frameMenu) && top(innerHeight - 435, lblStatus) &&
        top(frameMenu.Place().top - frameProcess.Place().height - 30, frameProcess) &&
        width(innerWidth - 2985, framePreview) &&
        height(frameProcess.Place().top - framePreview.Place().top - 90, framePreview) &&
        width(framePreview.Place().width - 60, picPreview) &&
        height(framePreview.Place().height - 420, picPreview) &&
        width(picPreview.Place().width, wbbImagePreview) &&
        height(picPreview.Place().height, wbbImagePreview);
}

}  // namespace morpho
