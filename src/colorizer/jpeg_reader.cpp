#include <algorithm>
#include <cstring>

#include "colorizer/colorizer.h"
#include "colorizer/jpeg_errors.h"
#include "colorizer/jpeg_layout.h"
#include "colorizer/jpeg_planes.h"

namespace colorizer {

namespace {

class Decoder {
  public:
    explicit Decoder(std::span<const std::uint8_t> file) {
        info_.err = &errors_;
        errors_.Run([&] {
            jpeg_create_decompress(&info_);
            jpeg_mem_src(&info_, file.data(), static_cast<unsigned long>(file.size()));
            jpeg_read_header(&info_, TRUE);
        });
    }

    void ReadInto(JpegPicture& picture) {
        picture.width = info_.image_width;
        picture.height = info_.image_height;
        picture.colour = Colour();
        picture.restartInterval = info_.restart_interval;
        for (int index = 0; index < info_.num_components; ++index) {
            picture.components.push_back(Component(info_.comp_info[index]));
        }
        JpegPlanes planes(picture);
        planes.AttachTo(reinterpret_cast<j_common_ptr>(&info_));
        errors_.Run([&] { jpeg_read_coefficients(&info_); });
        for (int index = 0; index < info_.num_components; ++index) {
            SetTable(picture, index, info_.comp_info[index]);
        }
        picture.hasOwnHuffmanTables = HasOwnHuffmanTables();
    }

  private:
    JpegColour Colour() const {
        switch (info_.jpeg_color_space) {
            case JCS_GRAYSCALE:
                return JpegColour::kGrey;
            case JCS_YCbCr:
                return JpegColour::kYCbCr;
            case JCS_RGB:
                return JpegColour::kRgb;
            default:
                throw Error("The JPEG picture has colours of an unknown kind.");
        }
    }

    static JpegComponent Component(const jpeg_component_info& info) {
        const auto roundedUp = [](std::size_t value, std::size_t factor) {
            return (value + factor - 1) / factor * factor;
        };
        JpegComponent component;
        component.id = info.component_id;
        component.horizontal = info.h_samp_factor;
        component.vertical = info.v_samp_factor;
        component.blocksWide = info.width_in_blocks;
        component.blocksHigh = info.height_in_blocks;
        component.plane =
            CoefficientPlane(roundedUp(info.width_in_blocks, std::size_t(info.h_samp_factor)),
                             roundedUp(info.height_in_blocks, std::size_t(info.v_samp_factor)));
        return component;
    }

    /// A file may give a slot a new table between two scans; here every table gets a slot of its
    /// own.
    static void SetTable(JpegPicture& picture, int index, const jpeg_component_info& info) {
        if (!info.quant_table)
            throw Error("The JPEG file is truncated.");  // no scan has this component
        JpegComponent& component = picture.components[index];
        std::copy_n(info.quant_table->quantval, 64, component.table.begin());
        if (std::count(component.table.begin(), component.table.end(), 0)) {
            throw Error("The JPEG file is damaged.");
        }
        const auto isTaken = [&](int slot) {
            return std::any_of(picture.components.begin(), picture.components.begin() + index,
                               [&](const JpegComponent& other) {
                                   return other.tableSlot == slot && other.table != component.table;
                               });
        };
        component.tableSlot = info.quant_tbl_no;
        for (int slot = 0; isTaken(component.tableSlot); ++slot)
            component.tableSlot = slot;
    }

    /// Compares with the standard's example tables, which the library sets for a new file.
    bool HasOwnHuffmanTables() {
        JpegCompress standard;
        standard.err = &errors_;
        errors_.Run([&] {
            jpeg_create_compress(&standard);
            standard.in_color_space = JCS_YCbCr;
            standard.input_components = 3;
            jpeg_set_defaults(&standard);
        });
        bool differs = false;
        for (int slot = 0; slot < NUM_HUFF_TBLS; ++slot) {
            differs |= Differs(info_.dc_huff_tbl_ptrs[slot], standard.dc_huff_tbl_ptrs[slot]);
            differs |= Differs(info_.ac_huff_tbl_ptrs[slot], standard.ac_huff_tbl_ptrs[slot]);
        }
        return differs;
    }

    static bool Differs(const JHUFF_TBL* table, const JHUFF_TBL* standard) {
        if (!table) return false;
        return !standard || std::memcmp(table->bits + 1, standard->bits + 1, 16) != 0 ||
               std::memcmp(table->huffval, standard->huffval, sizeof table->huffval) != 0;
    }

    JpegErrors errors_;
    JpegDecompress info_;
};

/// True when every coefficient is sent down to its last bit. The layout is that of a file which the
/// library has read.
bool IsComplete(const JpegLayout& layout) {
    int lowestBit[3][64];
    std::memset(lowestBit, -1, sizeof lowestBit);
    for (const JpegScan& scan : layout.scans) {
        for (int index = 0; index < scan.componentCount; ++index) {
            int* bits = lowestBit[scan.components[index]];
            std::fill(bits + scan.spectralStart, bits + scan.spectralEnd + 1, scan.bitLow);
        }
    }
    for (int component = 0; component < layout.componentCount; ++component) {
        if (!std::all_of(lowestBit[component], lowestBit[component] + 64,
                         [](int bit) { return bit == 0; }))
            return false;
    }
    return true;
}

}  // namespace

JpegPicture ReadJpeg(std::span<const std::uint8_t> file) {
    JpegLayout layout = ScanLayout(file);
    JpegPicture picture;
    Decoder(file.first(layout.end)).ReadInto(picture);
    picture.isProgressive = layout.isProgressive;
    if (IsComplete(layout)) picture.scans = std::move(layout.scans);
    picture.markers = std::move(layout.markers);
    const auto trailing = file.subspan(layout.end);
    picture.trailing.assign(trailing.begin(), trailing.end());
    return picture;
}

}  // namespace colorizer
