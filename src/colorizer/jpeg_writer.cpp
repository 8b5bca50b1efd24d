#include <algorithm>
#include <cstring>
#include <new>

#include "colorizer/jpeg_errors.h"
#include "colorizer/jpeg_planes.h"
#include "colorizer/recolorer.h"

#include <jerror.h>

namespace colorizer {

namespace {

J_COLOR_SPACE ColourSpace(JpegColour colour) {
    switch (colour) {
        case JpegColour::kGrey:
            return JCS_GRAYSCALE;
        case JpegColour::kYCbCr:
            return JCS_YCbCr;
        default:
            return JCS_RGB;
    }
}

/// The library's destination: bytes in memory.
class Output : public jpeg_destination_mgr {
  public:
    explicit Output(std::size_t sizeHint) : bytes_(sizeHint + kSlack) {
        init_destination = [](j_compress_ptr info) { Of(info).SetUsed(0); };
        empty_output_buffer = [](j_compress_ptr info) -> boolean { return Of(info).Grow(info); };
        term_destination = [](j_compress_ptr) {};
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
    static Output& Of(j_compress_ptr info) { return *static_cast<Output*>(info->dest); }

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

class Encoder {
  public:
    Encoder(JpegPicture& picture, RowPreparation& preparation, std::size_t sizeHint)
        : picture_(picture), planes_(picture, &preparation), output_(sizeHint) {
        info_.err = &errors_;
        errors_.Run([&] { jpeg_create_compress(&info_); });
        info_.dest = &output_;
        planes_.AttachTo(reinterpret_cast<j_common_ptr>(&info_));
    }

    std::vector<std::uint8_t> Run() {
        SetScript();
        jvirt_barray_ptr arrays[MAX_COMPONENTS];
        for (std::size_t index = 0; index < picture_.components.size(); ++index) {
            arrays[index] = planes_.Array(index);
        }
        errors_.Run([&] {
            SetParameters();
            jpeg_write_coefficients(&info_, arrays);
            output_.Append(picture_.markers);
            jpeg_finish_compress(&info_);
            output_.Append(picture_.trailing);
        });
        return output_.TakeBytes();
    }

  private:
    void SetParameters() {
        info_.image_width = picture_.width;
        info_.image_height = picture_.height;
        info_.input_components = static_cast<int>(picture_.components.size());
        info_.in_color_space = ColourSpace(picture_.colour);
        jpeg_set_defaults(&info_);
        jpeg_set_colorspace(&info_, ColourSpace(picture_.colour));
        for (JpegComponent& component : picture_.components)
            SetComponent(component);
        info_.optimize_coding = picture_.hasOwnHuffmanTables ? TRUE : FALSE;
        info_.restart_interval = picture_.restartInterval;
        info_.write_JFIF_header = FALSE;  // both are among the kept markers
        info_.write_Adobe_marker = FALSE;
        if (picture_.isProgressive && script_.empty()) {
            jpeg_simple_progression(&info_);
        } else if (picture_.isProgressive || script_.size() > 1) {
            info_.scan_info = script_.data();
            info_.num_scans = static_cast<int>(script_.size());
        }
    }

    void SetComponent(const JpegComponent& component) {
        const auto index = &component - picture_.components.data();
        jpeg_component_info& info = info_.comp_info[index];
        info.component_id = component.id;
        info.h_samp_factor = component.horizontal;
        info.v_samp_factor = component.vertical;
        info.quant_tbl_no = component.tableSlot;
        JQUANT_TBL*& table = info_.quant_tbl_ptrs[component.tableSlot];
        if (!table) table = jpeg_alloc_quant_table(reinterpret_cast<j_common_ptr>(&info_));
        std::copy(component.table.begin(), component.table.end(), table->quantval);
        table->sent_table = FALSE;
    }

    void SetScript() {
        for (const JpegScan& scan : picture_.scans) {
            jpeg_scan_info info{};
            info.comps_in_scan = scan.componentCount;
            std::copy(scan.components.begin(), scan.components.end(), info.component_index);
            info.Ss = scan.spectralStart;
            info.Se = scan.spectralEnd;
            info.Ah = scan.bitHigh;
            info.Al = scan.bitLow;
            script_.push_back(info);
        }
    }

    JpegPicture& picture_;
    JpegPlanes planes_;
    Output output_;
    JpegErrors errors_;
    std::vector<jpeg_scan_info> script_;
    JpegCompress info_;
};

}  // namespace

std::vector<std::uint8_t> WriteJpeg(JpegPicture& picture, RowPreparation& preparation,
                                    std::size_t sizeHint) {
    return Encoder(picture, preparation, sizeHint).Run();
}

std::array<QuantTable, 2> StandardTables(int quality) {
    JpegErrors errors;
    JpegCompress info;
    info.err = &errors;
    errors.Run([&] {
        jpeg_create_compress(&info);
        jpeg_set_quality(&info, quality, TRUE);
    });
    std::array<QuantTable, 2> tables;
    for (int slot = 0; slot < 2; ++slot)
        std::copy_n(info.quant_tbl_ptrs[slot]->quantval, 64, tables[slot].begin());
    return tables;
}

}  // namespace colorizer
