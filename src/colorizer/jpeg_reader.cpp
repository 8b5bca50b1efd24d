#include "colorizer/jpeg_reader.h"

#include <algorithm>
#include <cstring>

#include "colorizer/recolorer.h"

namespace colorizer {

namespace {

JpegColour ColourOf(const jpeg_decompress_struct& info) {
    switch (info.jpeg_color_space) {
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

JpegComponent ComponentOf(const jpeg_component_info& info) {
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

bool Differs(const JHUFF_TBL* table, const JHUFF_TBL* standard) {
    if (!table) return false;
    return !standard || std::memcmp(table->bits + 1, standard->bits + 1, 16) != 0 ||
           std::memcmp(table->huffval, standard->huffval, sizeof table->huffval) != 0;
}

// Refuses a file that is made to waste time, before anything is decoded.
void RequireBoundedWork(const JpegLayout& layout, const JpegPicture& picture) {
    std::uint64_t blocks = 0;
    for (const JpegScan& scan : layout.scans) {
        for (int index = 0; index < scan.componentCount; ++index) {
            const JpegComponent& component =
                picture.components[static_cast<std::size_t>(scan.components[index])];
            blocks += std::uint64_t{component.blocksWide} * component.blocksHigh;
        }
    }
    if (blocks > kMaxScanBlocks) throw Error("The JPEG picture has too many scans for its size.");
}

}  // namespace

JpegReader::JpegReader(std::span<const std::uint8_t> file, JpegPicture& picture)
    : layout_(ScanLayout(file)), picture_(picture) {
    info_.err = &errors_;
    errors_.Run([&] {
        jpeg_create_decompress(&info_);
        jpeg_mem_src(&info_, file.data(), static_cast<unsigned long>(layout_.end));
        jpeg_read_header(&info_, TRUE);
    });
    picture_.width = info_.image_width;
    picture_.height = info_.image_height;
    picture_.colour = ColourOf(info_);
    picture_.isProgressive = layout_.isProgressive;
    picture_.restartInterval = info_.restart_interval;
    picture_.markers = std::move(layout_.markers);
    const auto trailing = file.subspan(layout_.end);
    picture_.trailing.assign(trailing.begin(), trailing.end());
    for (int index = 0; index < info_.num_components; ++index) {
        const jpeg_component_info& component = info_.comp_info[index];
        picture_.components.push_back(ComponentOf(component));
    }
    RequireBoundedWork(layout_, picture_);
    hasOneScan_ = !layout_.isProgressive && layout_.scans.size() == 1 &&
                  layout_.scans[0].componentCount == info_.num_components;
    if (hasOneScan_) FinishTables();
}

void JpegReader::ReadCoefficients(RowPreparation* rows) {
    JpegPlanes planes(picture_, rows);
    planes.AttachTo(reinterpret_cast<j_common_ptr>(&info_));
    errors_.Run([&] { jpeg_read_coefficients(&info_); });
    if (hasOneScan_) return;
    FinishTables();
    if (IsComplete()) picture_.scans = std::move(layout_.scans);
}

void JpegReader::FinishTables() {
    for (int index = 0; index < info_.num_components; ++index) {
        const jpeg_component_info& info = info_.comp_info[index];
        const int slot = info.quant_tbl_no;
        if (slot < 0 || slot >= NUM_QUANT_TBLS) throw Error("The JPEG file is damaged.");
        const JQUANT_TBL* const table = hasOneScan_ ? info_.quant_tbl_ptrs[slot] : info.quant_table;
        if (!table) throw Error("The JPEG file is truncated.");  // no scan has this component
        JpegComponent& component = picture_.components[index];
        std::copy_n(table->quantval, 64, component.table.begin());
        if (std::count(component.table.begin(), component.table.end(), 0)) {
            throw Error("The JPEG file is damaged.");
        }
        component.tableSlot = FreeSlot(index, slot);
    }
    picture_.hasOwnHuffmanTables = HasOwnHuffmanTables();
}

int JpegReader::FreeSlot(int index, int slot) const {
    const auto end = picture_.components.begin() + index;
    const QuantTable& table = picture_.components[index].table;
    const auto isTaken = [&](int wanted) {
        return std::any_of(picture_.components.begin(), end, [&](const JpegComponent& other) {
            return other.tableSlot == wanted && other.table != table;
        });
    };
    for (int next = 0; isTaken(slot); ++next)
        slot = next;
    return slot;
}

bool JpegReader::HasOwnHuffmanTables() {
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

bool JpegReader::IsComplete() const {
    int lowestBit[3][64];
    std::memset(lowestBit, -1, sizeof lowestBit);
    for (const JpegScan& scan : layout_.scans) {
        for (int index = 0; index < scan.componentCount; ++index) {
            int* bits = lowestBit[scan.components[index]];
            std::fill(bits + scan.spectralStart, bits + scan.spectralEnd + 1, scan.bitLow);
        }
    }
    return std::all_of(lowestBit[0], lowestBit[layout_.componentCount],
                       [](int bit) { return bit == 0; });
}

}  // namespace colorizer
