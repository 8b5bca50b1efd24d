#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <utility>
#include <vector>

#include <jerror.h>
#include <jpeglib.h>

namespace colorizer {

/// The library's source: pieces of a file in memory, one after the other. They must outlive it.
class JpegSource : public jpeg_source_mgr {
  public:
    using Pieces = std::vector<std::span<const std::uint8_t>>;

    explicit JpegSource(Pieces pieces) : jpeg_source_mgr{} {
        init_source = [](j_decompress_ptr) {};
        fill_input_buffer = [](j_decompress_ptr info) -> boolean {
            if (!Of(info).Next()) ERREXIT(info, JERR_INPUT_EOF);
            return TRUE;
        };
        skip_input_data = [](j_decompress_ptr info, long count) { Of(info).Skip(info, count); };
        resync_to_restart = jpeg_resync_to_restart;
        term_source = [](j_decompress_ptr) {};
        Continue(std::move(pieces));
    }

    /// The library gets these pieces from here on.
    void Continue(Pieces pieces) {
        pieces_ = std::move(pieces);
        next_ = 0;
        bytes_in_buffer = 0;
    }

  private:
    static JpegSource& Of(j_decompress_ptr info) { return *static_cast<JpegSource*>(info->src); }

    bool Next() {
        while (next_ < pieces_.size() && pieces_[next_].empty())
            ++next_;
        if (next_ == pieces_.size()) return false;
        next_input_byte = pieces_[next_].data();
        bytes_in_buffer = pieces_[next_++].size();
        return true;
    }

    void Skip(j_decompress_ptr info, long count) {
        auto left = static_cast<std::size_t>(count > 0 ? count : 0);
        while (left > bytes_in_buffer) {
            left -= bytes_in_buffer;
            if (!Next()) ERREXIT(info, JERR_INPUT_EOF);
        }
        next_input_byte += left;
        bytes_in_buffer -= left;
    }

    Pieces pieces_;
    std::size_t next_ = 0;
};

}  // namespace colorizer
