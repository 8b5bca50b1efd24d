#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "editing/element_adjustment.h"
#include "image_editor/image_location.h"
#include "shared/component.h"

namespace morpho {

// The picture that is being edited. It works on two copies in a temporary folder of its own: the
// source copy, the input of every recolouring, is never changed while the picture is edited; the
// working copy is its output and what is shown. "Throws" below means RunTimeError.
class EditedImage {
  public:
    explicit EditedImage(const Program& program) : program_(program) {}
    EditedImage(const EditedImage&) = delete;
    EditedImage& operator=(const EditedImage&) = delete;

    // The temporary folder, with a trailing "\"; to be set before a picture is opened.
    void SetTempPath(std::string tempPath) { tempPath_ = std::move(tempPath); }

    bool IsOpen() const { return !workingCopyPath_.empty(); }
    // Where it was opened from and is saved to; kind kNone when no picture is open.
    const ImageLocation& Location() const { return location_; }
    const std::string& FileName() const { return fileName_; }
    const std::string& SourceCopyPath() const { return sourceCopyPath_; }
    const std::string& WorkingCopyPath() const { return workingCopyPath_; }
    bool IsJpeg() const;
    // The bytes of the working copy. Throws.
    std::string WorkingCopy() const;

    // Copies the picture, which must not be of kind kNone; none may be open. False when the host
    // cannot fetch it; throws when it cannot be copied. In both cases none is open then.
    bool Open(const ImageLocation& image);
    // Deletes the copies; a file that cannot be deleted is left.
    void Close();

    // Recolours the source copy into the working copy; `quality`, 1 to 100, is for a JPEG. What the
    // working copy already shows is not done again. Throws; the working copy then stays as it was.
    void Recolour(const ElementAdjustment& adjustment, std::int16_t quality);
    // Copies the source copy over the working copy. Throws.
    void Restore();

    // Puts the working copy into its place, and makes it the source copy. Throws; the picture there
    // then stays as it was.
    void Save();
    // The same at another place, which becomes the picture's own unless it throws.
    void SaveAs(const ImageLocation& place);

  private:
    // What was done to the source copy.
    struct Recolouring {
        ElementAdjustment adjustment;
        std::int16_t quality = 0;

        bool operator==(const Recolouring&) const = default;
    };

    void CreateFolder();
    bool Fetch();
    void PutIntoWeb();

    Program program_;
    std::string tempPath_;
    std::string folder_;  // of the copies, with a trailing "\"; empty while there is none
    ImageLocation location_;
    std::string fileName_;
    std::string sourceCopyPath_;
    std::string workingCopyPath_;
    std::optional<Recolouring> shown_;  // by the working copy; nothing when it is the source copy
};

}  // namespace morpho
