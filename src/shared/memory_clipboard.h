#pragma once

#include "platform/clipboard.h"

namespace morpho {

// A clipboard of this program's own, for a program without a screen.
class MemoryClipboard : public Clipboard {
  public:
    static constexpr std::string_view kPictureFormat = "image/bmp";

    std::vector<ClipboardData> Contents() const override { return contents_; }
    void SetContents(const std::vector<ClipboardData>& contents) override { contents_ = contents; }
    std::string Picture() const override {
        for (const ClipboardData& data : contents_) {
            if (data.format == kPictureFormat) return data.bytes;
        }
        return {};
    }
    void SetPicture(std::string_view bitmap) override {
        contents_ = {{std::string(kPictureFormat), std::string(bitmap)}};
    }

  private:
    std::vector<ClipboardData> contents_;
};

}  // namespace morpho
