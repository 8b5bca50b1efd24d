#pragma once

#include <string_view>

#include "windows_com/com_pointer.h"

namespace morpho {

// A picture that the host's objects take, made of the bytes of a BMP file. Throws RunTimeError
// (kInvalidPicture) for other bytes.
ComPointer<IPictureDisp> MakePictureObject(std::string_view bitmap);

}  // namespace morpho
