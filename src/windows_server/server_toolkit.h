#pragma once

#include <memory>

#include "forms/toolkit.h"
#include "windows_server/common_controls.h"

namespace morpho {

// The toolkit in the host's process: its windows have the common controls that this module asks
// for.
class ServerToolkit : public Toolkit {
  public:
    explicit ServerToolkit(std::unique_ptr<Toolkit> toolkit) : toolkit_(std::move(toolkit)) {}

    void PlaceAtStart(Form& form) override {
        const CommonControls::Active active(controls_);
        toolkit_->PlaceAtStart(form);
    }
    void RunModal(Form& form) override {
        const CommonControls::Active active(controls_);
        toolkit_->RunModal(form);
    }
    Answer ShowMessage(Form* owner, std::string_view text, int flags,
                       std::string_view title) override {
        const CommonControls::Active active(controls_);
        return toolkit_->ShowMessage(owner, text, flags, title);
    }
    std::optional<std::string> ShowFileDialog(Form* owner, const FileDialog& request) override {
        const CommonControls::Active active(controls_);
        return toolkit_->ShowFileDialog(owner, request);
    }
    Rectangle NormalPlacement(const Form& form) const override {
        return toolkit_->NormalPlacement(form);
    }
    CapturedWindow ReleaseCapture() override { return toolkit_->ReleaseCapture(); }
    void SetCapture(CapturedWindow window) override { toolkit_->SetCapture(window); }

  private:
    CommonControls controls_;
    std::unique_ptr<Toolkit> toolkit_;
};

}  // namespace morpho
