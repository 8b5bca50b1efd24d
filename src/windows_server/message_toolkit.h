#pragma once

#include "forms/toolkit.h"

namespace morpho {

// A toolkit with message boxes alone: other windows cannot be opened yet.
class MessageToolkit : public Toolkit {
  public:
    void RunModal(Form& form) override;  // throws RunTimeError
    Answer ShowMessage(Form* owner, std::string_view text, int flags,
                       std::string_view title) override;
    std::optional<std::string> ShowFileDialog(Form* owner, const FileDialog& request) override;
    Rectangle NormalPlacement(const Form& form) const override;
    CapturedWindow ReleaseCapture() override { return nullptr; }
    void SetCapture(CapturedWindow) override {}
};

}  // namespace morpho
