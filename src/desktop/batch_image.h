#pragma once

#include <string>

#include "desktop/request.h"
#include "forms/headless_toolkit.h"
#include "image_editor/frm_image_morpho.h"

namespace morpho {

// An Image Morpho window on one picture that a batch operates instead of a person, through the same
// controls. Throws CommandError where a person could not do something, or would see an error.
class BatchImage {
  public:
    // Opens the picture of this Windows path. `toolkit` is the program's own.
    BatchImage(const Program& program, HeadlessToolkit& toolkit, const std::string& picture);
    ~BatchImage();
    BatchImage(const BatchImage&) = delete;
    BatchImage& operator=(const BatchImage&) = delete;

    // Sets the quality, moves the sliders and lets them recolour the picture.
    void Recolour(const PictureChange& change);
    // The Save button.
    void Save();
    // The Save As button and its dialog; an existing file is replaced.
    void SaveAs(const std::string& file);

  private:
    // Throws CommandError with what the window tells or, if it tells nothing, with `otherwise`.
    [[noreturn]] void Refuse(const std::string& otherwise) const;
    void RequireSaved() const;

    HeadlessToolkit& toolkit_;
    frmImageMorpho window_;
    std::size_t messagesBefore_;
};

}  // namespace morpho
