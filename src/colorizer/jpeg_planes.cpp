#include "colorizer/jpeg_planes.h"

namespace colorizer {

void JpegPlanes::AttachTo(j_common_ptr info) {
    info->client_data = this;
    info->mem->request_virt_barray = Request;
    info->mem->access_virt_barray = Access;
}

jvirt_barray_ptr JpegPlanes::Array(std::size_t component) {
    // The library never looks into it, but hands it back to its memory manager.
    return reinterpret_cast<jvirt_barray_ptr>(&picture_.components[component]);
}

jvirt_barray_ptr JpegPlanes::Request(j_common_ptr info, int, boolean, JDIMENSION, JDIMENSION,
                                     JDIMENSION) {
    auto* const self = static_cast<JpegPlanes*>(info->client_data);
    return self->Array(self->requested_++);
}

JBLOCKARRAY JpegPlanes::Access(j_common_ptr info, jvirt_barray_ptr array, JDIMENSION startRow,
                               JDIMENSION rowCount, boolean) {
    auto* const self = static_cast<JpegPlanes*>(info->client_data);
    auto* const component = reinterpret_cast<JpegComponent*>(array);
    const bool isPrepared =
        !self->preparation_ || self->preparation_->Prepare(*component, startRow + rowCount);
    if (!isPrepared) info->err->error_exit(info);
    return component->plane.Rows() + startRow;
}

}  // namespace colorizer
