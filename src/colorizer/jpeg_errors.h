#pragma once

#include <csetjmp>
#include <cstdio>

#include <jpeglib.h>

namespace colorizer {

/// libjpeg's error manager. Warnings about damage count as errors.
class JpegErrors : public jpeg_error_mgr {
  public:
    /// With `mayMissScans` the scans that a progressive scan refines may be missing.
    explicit JpegErrors(bool mayMissScans = false);

    /// Runs `step` and turns an error exit of the library into a thrown Error. An error exit skips
    /// destructors, so `step` may keep nothing that has one.
    template <class Step>
    void Run(const Step& step) {
        if (setjmp(exit_) != 0) Throw();
        step();
    }

  private:
    [[noreturn]] void Throw();
    [[noreturn]] static void Exit(j_common_ptr info);
    static void Warn(j_common_ptr info, int level);

    bool mayMissScans_;
    std::jmp_buf exit_;
    char text_[JMSG_LENGTH_MAX];
};

/// The library's two objects, destroyed at the end of their scope.
struct JpegDecompress : jpeg_decompress_struct {
    JpegDecompress() : jpeg_decompress_struct{} {}
    JpegDecompress(const JpegDecompress&) = delete;
    JpegDecompress& operator=(const JpegDecompress&) = delete;
    ~JpegDecompress() { jpeg_destroy_decompress(this); }
};
struct JpegCompress : jpeg_compress_struct {
    JpegCompress() : jpeg_compress_struct{} {}
    JpegCompress(const JpegCompress&) = delete;
    JpegCompress& operator=(const JpegCompress&) = delete;
    ~JpegCompress() { jpeg_destroy_compress(this); }
};

}  // namespace colorizer
