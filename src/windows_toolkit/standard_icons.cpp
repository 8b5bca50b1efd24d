#include "windows_toolkit/standard_icons.h"

#include <shellapi.h>

namespace morpho {

namespace {

// The caller destroys the icon; null for an unknown name.
HICON IconOf(const std::string& imageName, UINT size) {
    const struct {
        const char* imageName;
        const wchar_t* fileName;  // of a file or folder that need not exist
        DWORD attributes;
        UINT variant;
    } icons[] = {{"ClosedFolder", L"folder", FILE_ATTRIBUTE_DIRECTORY, 0},
                 {"OpenFolder", L"folder", FILE_ATTRIBUTE_DIRECTORY, SHGFI_OPENICON},
                 {"Image", L"image.gif", FILE_ATTRIBUTE_NORMAL, 0}};
    for (const auto& icon : icons) {
        if (imageName != icon.imageName) continue;
        SHFILEINFOW found{};
        SHGetFileInfoW(icon.fileName, icon.attributes, &found, sizeof found,
                       SHGFI_ICON | SHGFI_USEFILEATTRIBUTES | size | icon.variant);
        return found.hIcon;
    }
    return nullptr;
}

int SmallIconSize(int dpi) {
    return MulDiv(16, dpi, USER_DEFAULT_SCREEN_DPI);
}

}  // namespace

StandardIcons::StandardIcons(int dpi)
    : images_(
          ImageList_Create(SmallIconSize(dpi), SmallIconSize(dpi), ILC_COLOR32 | ILC_MASK, 3, 1)) {}

StandardIcons::~StandardIcons() {
    ImageList_Destroy(images_);
}

// The image list scales an icon that is larger.
int StandardIcons::Index(const std::string& imageName) {
    const auto known = indices_.find(imageName);
    if (known != indices_.end()) return known->second;
    int size = 0;
    ImageList_GetIconSize(images_, &size, &size);
    const bool larger = size > GetSystemMetrics(SM_CXSMICON);
    const HICON icon = IconOf(imageName, larger ? SHGFI_LARGEICON : SHGFI_SMALLICON);
    int index = I_IMAGENONE;
    if (icon != nullptr) {
        index = ImageList_ReplaceIcon(images_, -1, icon);
        DestroyIcon(icon);
    }
    return indices_[imageName] = index;
}

}  // namespace morpho
