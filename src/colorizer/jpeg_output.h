#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <new>
#include <span>
#include <utility>
#include <vector>

#include <jerror.h>
#include <jpeglib.h>

namespace colorizer {

/// The library's destination: bytes in memory.
class JpegOutput : public jpeg_destination_mgr {
  public:
    explicit JpegOutput(std::size_t sizeHint) : bytes_(sizeHint + kSlack) {
        init_destination = [](j_compress_ptr info) { Of(info).SetUsed(0); };
        empty_output_buffer = [](j_compress_ptr info) -> boolean { return Of(info).Grow(info); };
        term_destination = [](j_compress_ptr) {};
        SetUsed(0);
    }

    void Append(std::span<const std::uint8_t> bytes) {
        const std::size_t used = Used();
        if (free_in_buffer < bytes.size()) bytes_.resize(used + bytes.size() + kSlack);
        std::copy(bytes.begin(), bytes.end(), bytes_.data() + used);
        SetUsed(used + bytes.size());
    }

    std::vector<std::uint8_t> TakeBytes() {
        bytes_.resize(Used());
        return std::move(bytes_);
    }

  private:
    static JpegOutput& Of(j_compress_ptr info) { return *static_cast<JpegOutput*>(info->dest); }

    std::size_t Used() const { return bytes_.size() - free_in_buffer; }

    void SetUsed(std::size_t used) {
        next_output_byte = bytes_.data() + used;
        free_in_buffer = bytes_.size() - used;
    }

    /// The library asks when the whole buffer is used; its pointers here are older than that.
    boolean Grow(j_compress_ptr info) {
        const std::size_t used = bytes_.size();
        bool isGrown = false;
        try {
            bytes_.resize(used + used / 2);
            isGrown = true;
        } catch (const std::bad_alloc&) {  // must not pass through the library's frames
        }
        if (!isGrown) ERREXIT1(info, JERR_OUT_OF_MEMORY, 0);
        SetUsed(used);
        return TRUE;
    }

    static constexpr std::size_t kSlack = 4096;
    std::vector<std::uint8_t> bytes_;
};

}  // namespace colorizer
