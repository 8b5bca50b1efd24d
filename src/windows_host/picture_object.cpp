#include "windows_host/picture_object.h"

#include <cstring>

#include "platform/run_time_error.h"

namespace morpho {

namespace {

// A stream that reads these bytes; null when there is no memory for it.
ComPointer<IStream> StreamOf(std::string_view bytes) {
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    if (memory == nullptr) return nullptr;
    ComPointer<IStream> stream;
    if (void* place = ::GlobalLock(memory)) {
        std::memcpy(place, bytes.data(), bytes.size());
        ::GlobalUnlock(memory);
        ::CreateStreamOnHGlobal(memory, TRUE, stream.Out());
    }
    if (!stream) ::GlobalFree(memory);
    return stream;
}

}  // namespace

ComPointer<IPictureDisp> MakePictureObject(std::string_view bitmap) {
    const ComPointer<IStream> stream = StreamOf(bitmap);
    ComPointer<IPictureDisp> picture;
    if (stream)
        ::OleLoadPicture(stream.Get(), static_cast<LONG>(bitmap.size()), FALSE, IID_IPictureDisp,
                         picture.OutVoid());
    if (!picture) throw RunTimeError(ErrorNumber::kInvalidPicture, "Invalid picture");
    return picture;
}

}  // namespace morpho
