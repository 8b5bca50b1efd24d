#include <algorithm>
#include <cstring>

#include "colorizer/jpeg_errors.h"
#include "colorizer/jpeg_output.h"
#include "colorizer/jpeg_planes.h"
#include "colorizer/jpeg_scans.h"
#include "colorizer/recolorer.h"

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

class Encoder {
  public:
    Encoder(JpegPicture& picture, RowPreparation* preparation, std::size_t sizeHint)
        : picture_(picture), planes_(picture, preparation), output_(sizeHint) {
        info_.err = &errors_;
        SetScript();
        errors_.Run([&] { jpeg_create_compress(&info_); });
        info_.dest = &output_;
        planes_.AttachTo(reinterpret_cast<j_common_ptr>(&info_));
    }

    /// The whole file.
    std::vector<std::uint8_t> Run() {
        errors_.Run([&] {
            SetParameters();
            Begin();
            output_.Append(picture_.markers);
            jpeg_finish_compress(&info_);
            output_.Append(picture_.trailing);
        });
        return output_.TakeBytes();
    }

    std::size_t ScanCount() {
        errors_.Run([&] { SetParameters(); });
        return static_cast<std::size_t>(info_.num_scans);
    }

    /// A file whose only scan is this one of a progressive picture.
    std::vector<std::uint8_t> RunScan(std::size_t scan) {
        errors_.Run([&] {
            SetParameters();
            const jpeg_scan_info wanted = info_.scan_info[scan];
            // The library refuses a script without a scan of the DC values. It checks the script at
            // the beginning, and reads it at the end.
            jpeg_scan_info script{info_.num_components, {0, 1, 2, 3}, 0, 0, 0, 0};
            info_.scan_info = &script;
            info_.num_scans = 1;
            Begin();
            script = wanted;
            jpeg_finish_compress(&info_);
        });
        return output_.TakeBytes();
    }

  private:
    void Begin() {
        for (std::size_t index = 0; index < picture_.components.size(); ++index)
            arrays_[index] = planes_.Array(index);
        jpeg_write_coefficients(&info_, arrays_);
    }

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
    jvirt_barray_ptr arrays_[MAX_COMPONENTS];  ///< the library reads it at the end
    JpegOutput output_;
    JpegErrors errors_;
    std::vector<jpeg_scan_info> script_;
    JpegCompress info_;
};

}  // namespace

std::vector<std::uint8_t> WriteJpeg(JpegPicture& picture, RowPreparation& preparation,
                                    std::size_t sizeHint) {
    if (!picture.isProgressive || !IsWorthThreads(picture.components[0]))
        return Encoder(picture, &preparation, sizeHint).Run();
    for (const JpegComponent& component : picture.components) {
        if (!preparation.Prepare(component, component.blocksHigh)) throw Error("Stopped.");
    }
    const std::size_t scans = Encoder(picture, nullptr, 0).ScanCount();
    return EncodeScans(picture, scans, [&](std::size_t scan) {
        return Encoder(picture, nullptr, sizeHint / scans).RunScan(scan);
    });
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
