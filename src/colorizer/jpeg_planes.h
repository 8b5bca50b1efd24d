#pragma once

#include <cstdio>

#include <jpeglib.h>

#include "colorizer/jpeg_picture.h"

namespace colorizer {

/// Lets libjpeg read and write the planes of a picture in place of arrays of its own, without a
/// copy.
class JpegPlanes {
  public:
    /// `preparation` is asked before the library gets rows, and may be absent. Both must outlive
    /// this.
    explicit JpegPlanes(JpegPicture& picture, RowPreparation* preparation = nullptr)
        : picture_(picture), preparation_(preparation) {}

    /// Call it once the library's object is created and nothing else is done with it yet.
    void AttachTo(j_common_ptr info);

    /// What the library takes for its array of the component's coefficients.
    jvirt_barray_ptr Array(std::size_t component);

  private:
    static jvirt_barray_ptr Request(j_common_ptr info, int, boolean, JDIMENSION, JDIMENSION,
                                    JDIMENSION);
    static JBLOCKARRAY Access(j_common_ptr info, jvirt_barray_ptr array, JDIMENSION startRow,
                              JDIMENSION rowCount, boolean);

    JpegPicture& picture_;
    RowPreparation* preparation_;
    std::size_t requested_ = 0;  ///< arrays are asked for in the order of the components
};

}  // namespace colorizer
