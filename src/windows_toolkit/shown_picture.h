#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "windows_system/win32.h"

namespace morpho {

// A decoded picture (JPEG, GIF, PNG, BMP) with the frames of its animation.
class ShownPicture {
  public:
    // Null when the picture is damaged or of another format.
    static std::unique_ptr<ShownPicture> Decode(std::string_view encoded);
    virtual ~ShownPicture() = default;

    // The picture's own size.
    virtual SIZE Pixels() const = 0;
    // How long the current frame stands, in milliseconds; 0: for good.
    virtual UINT Duration() const = 0;
    virtual void NextFrame() = 0;
    // Draws the current frame into this place of the device, scaled smoothly.
    virtual void Draw(HDC device, const RECT& place) = 0;
};

}  // namespace morpho
