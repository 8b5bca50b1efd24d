#include "colorizer/jpeg_errors.h"

#include <jerror.h>

#include <string>

#include "colorizer/recolorer.h"

namespace colorizer {

JpegErrors::JpegErrors(bool mayMissScans) : mayMissScans_(mayMissScans) {
    jpeg_std_error(this);
    error_exit = Exit;
    emit_message = Warn;
}

void JpegErrors::Exit(j_common_ptr info) {
    auto* self = static_cast<JpegErrors*>(info->err);
    self->format_message(info, self->text_);
    std::longjmp(self->exit_, 1);
}

void JpegErrors::Warn(j_common_ptr info, int level) {
    if (level >= 0) return;
    const auto* self = static_cast<JpegErrors*>(info->err);
    switch (self->msg_code) {
        case JWRN_BOGUS_PROGRESSION:
            if (self->mayMissScans_) return;
            Exit(info);
        case JWRN_ADOBE_XFORM:  // these four say nothing about the picture's data
        case JWRN_BOGUS_ICC:
        case JWRN_JFIF_MAJOR:
        case JWRN_NOT_SEQUENTIAL:
            return;
        default:
            Exit(info);
    }
}

void JpegErrors::Throw() {
    if (msg_code == JERR_OUT_OF_MEMORY)
        throw Error("There is not enough memory for the JPEG picture.");
    throw Error("The JPEG file is damaged (" + std::string(text_) + ").");
}

}  // namespace colorizer
