#pragma once

#include "image_editor/image_location.h"
#include "shared/component.h"

namespace morpho {

// The picture that is selected in the page the person works on; of kind kNone when there is none,
// or when neither the open web nor the disk has it. Throws RunTimeError when the host refuses a
// call. The page is left as it was, also then.
ImageLocation FindSelectedImage(const Program& program);

}  // namespace morpho
