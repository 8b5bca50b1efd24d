#include "colorizer/jpeg_errors.h"

#include <jerror.h>

#include <string>

#include "colorizer/colorizer.h"
#include "colorizer/jpeg_picture.h"

namespace colorizer {

namespace {

// The library knows its virtual arrays only as pointers that it hands back to its memory manager.

jvirt_barray_ptr RequestPlane(j_common_ptr info, int, boolean, JDIMENSION, JDIMENSION, JDIMENSION) {
    auto* const component = static_cast<JpegComponent*>(info->client_data);
    info->client_data = component + 1;
    return reinterpret_cast<jvirt_barray_ptr>(&component->plane);
}

JBLOCKARRAY AccessPlane(j_common_ptr, jvirt_barray_ptr array, JDIMENSION startRow, JDIMENSION,
                        boolean) {
    return reinterpret_cast<CoefficientPlane*>(array)->Rows() + startRow;
}

}  // namespace

JpegErrors::JpegErrors() {
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
    switch (info->err->msg_code) {
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

void UsePlanes(jpeg_memory_mgr& memory) {
    memory.request_virt_barray = RequestPlane;
    memory.access_virt_barray = AccessPlane;
}

}  // namespace colorizer
