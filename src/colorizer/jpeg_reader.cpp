#include "colorizer/jpeg_reader.h"

#include <algorithm>
#include <cstring>

#include "colorizer/recolorer.h"
#include "colorizer/row_relay.h"

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

/// Reads one scan of a picture whose other scans are read elsewhere.
class ScanReader {
  public:
    ScanReader(JpegSource::Pieces pieces, JpegPicture& picture, RowPreparation& rows)
        : source_(std::move(pieces)), planes_(picture, &rows) {}

    void Read() {
        info_.err = &errors_;
        errors_.Run([&] {
            jpeg_create_decompress(&info_);
            info_.src = &source_;
            jpeg_read_header(&info_, TRUE);
            planes_.AttachTo(reinterpret_cast<j_common_ptr>(&info_));
            jpeg_read_coefficients(&info_);
        });
    }

  private:
    JpegErrors errors_{true};
    JpegSource source_;
    JpegPlanes planes_;
    JpegDecompress info_;
};

}  // namespace

JpegReader::JpegReader(std::span<const std::uint8_t> file, JpegPicture& picture)
    : file_(file),
      layout_(ScanLayout(file)),
      picture_(picture),
      source_({file.first(layout_.end)}) {
    info_.err = &errors_;
    errors_.Run([&] {
        jpeg_create_decompress(&info_);
        info_.src = &source_;
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
    if (CanLastScanFollow()) {
        DecodeLastScanBeside();
    } else {
        Decode(rows);
    }
    if (hasOneScan_) return;
    FinishTables();
    if (IsComplete()) picture_.scans = std::move(layout_.scans);
}

void JpegReader::Decode(RowPreparation* rows) {
    JpegPlanes planes(picture_, rows);
    planes.AttachTo(reinterpret_cast<j_common_ptr>(&info_));
    errors_.Run([&] { jpeg_read_coefficients(&info_); });
}

// The last scan of a progressive picture is often the longest: the lowest bits of the luma. It adds
// to what earlier scans of its component have sent, row by row.
bool JpegReader::CanLastScanFollow() const {
    const JpegScan& last = layout_.scans.back();
    if (!layout_.isProgressive || !IsWorthThreads(picture_.components[0])) return false;
    if (last.componentCount != 1 || last.spectralStart == 0 || last.spectralEnd > 63) return false;
    const BitsSent sent = SentBits(std::span(layout_.scans).first(layout_.scans.size() - 1));
    const int* const bits = sent[static_cast<std::size_t>(last.components[0])].data();
    return last.bitHigh > 0 && last.bitLow == last.bitHigh - 1 && bits[0] != kNotSent &&
           std::all_of(bits + last.spectralStart, bits + last.spectralEnd + 1,
                       [&](int bit) { return bit == last.bitHigh; });
}

void JpegReader::DecodeLastScanBeside() {
    const JpegScan& last = layout_.scans.back();
    const int component = last.components[0];
    std::size_t scans = 0, refined = 0;  // of the component; the one that the last scan refines
    for (const JpegScan& scan : std::span(layout_.scans).first(layout_.scans.size() - 1)) {
        const auto end = scan.components.begin() + scan.componentCount;
        if (std::find(scan.components.begin(), end, component) == end) continue;
        ++scans;
        if (scan.spectralStart > 0) refined = scans;
    }
    RowRelay relay;
    TellRowsOfScan told(relay, picture_.components[static_cast<std::size_t>(component)], refined);
    AwaitRows awaited(relay);
    ScanReader reader(LastScan(), picture_, awaited);
    source_.Continue(AllButLastScan());
    RunSideBySide(
        relay, [&] { Decode(&told); }, [&] { reader.Read(); });
}

JpegSource::Pieces JpegReader::AllButLastScan() const {
    const std::span<const std::uint8_t> last = layout_.scanBytes.back();
    return {{source_.next_input_byte, last.data()},
            {last.data() + last.size(), file_.data() + layout_.end}};
}

JpegSource::Pieces JpegReader::LastScan() const {
    JpegSource::Pieces pieces;
    const std::uint8_t* begin = file_.data();
    for (const auto& scan : layout_.scanBytes) {
        if (&scan == &layout_.scanBytes.back()) break;
        pieces.emplace_back(begin, scan.data());
        begin = scan.data() + scan.size();
    }
    pieces.emplace_back(begin, file_.data() + layout_.end);
    return pieces;
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
    const BitsSent sent = SentBits(layout_.scans);
    return std::all_of(sent.begin(), sent.begin() + layout_.componentCount, [](const auto& bits) {
        return std::all_of(bits.begin(), bits.end(), [](int bit) { return bit == 0; });
    });
}

}  // namespace colorizer
