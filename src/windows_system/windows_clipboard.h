#pragma once

#include "platform/clipboard.h"

namespace morpho {

// The clipboard of Windows. Formats are named by their numbers there.
class WindowsClipboard : public Clipboard {
  public:
    std::vector<ClipboardData> Contents() const override;
    void SetContents(const std::vector<ClipboardData>& contents) override;
    std::string Picture() const override;
    void SetPicture(std::string_view bitmap) override;
};

}  // namespace morpho
