#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace morpho {

// Where a picture is kept. The numbers are those of the web file dialog's result.
enum class ImageKind : std::int16_t { kNone = 0, kWeb = 1, kDisk = 2 };

struct ImageLocation {
    ImageKind kind = ImageKind::kNone;
    std::string address;  // an absolute address in the open web, or a Windows path
};

// The last component of the address.
inline std::string FileNameOfImage(const ImageLocation& image) {
    const char separator = image.kind == ImageKind::kWeb ? '/' : '\\';
    return image.address.substr(image.address.rfind(separator) + 1);
}

// The address without its last component and the separator before it.
inline std::string FolderOfImage(const ImageLocation& image) {
    const char separator = image.kind == ImageKind::kWeb ? '/' : '\\';
    const std::size_t end = image.address.rfind(separator);
    return end == std::string::npos ? std::string() : image.address.substr(0, end);
}

// What the dialogs that open or save a picture offer, as ReadFilter reads it.
inline constexpr std::string_view kDiskImageFilter =
    "Image files|*.gif;*.jpg;*.jpeg|GIF files|*.gif|JPEG files|*.jpg;*.jpeg|All Files|*.*||";
// The same for the web file dialog: extensions alone.
inline constexpr std::string_view kWebImageFilter =
    "Image files|gif;jpg;jpeg|GIF files|gif|JPEG files|jpg;jpeg|All Files|*";

}  // namespace morpho
