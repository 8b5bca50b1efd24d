#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morpho {

// Contents of the clipboard in one format.
struct ClipboardData {
    std::string format;  // as the implementation names it
    std::string bytes;

    bool operator==(const ClipboardData&) const = default;
};

// The clipboard that all programs of the user share. A call that fails throws RunTimeError.
class Clipboard {
  public:
    virtual ~Clipboard() = default;
    // What it holds in each picture and text format; other formats are left out.
    virtual std::vector<ClipboardData> Contents() const = 0;
    // Replaces what it holds. `contents` are from Contents of the same clipboard.
    virtual void SetContents(const std::vector<ClipboardData>& contents) = 0;
    // The picture that it holds as the bytes of a BMP file; empty when it holds none.
    virtual std::string Picture() const = 0;
    // Replaces what it holds by a picture, the bytes of a BMP file.
    virtual void SetPicture(std::string_view bitmap) = 0;
    void Clear() { SetContents({}); }
};

}  // namespace morpho
