#include "colorizer/jpeg_layout.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "colorizer/recolorer.h"

namespace colorizer {

namespace {

// Marker codes, ITU-T T.81, table B.1.
constexpr int kSof0 = 0xC0, kSof2 = 0xC2, kDht = 0xC4, kJpg = 0xC8, kSof9 = 0xC9, kDac = 0xCC,
              kSof15 = 0xCF;
constexpr int kRst0 = 0xD0, kRst7 = 0xD7, kSoi = 0xD8, kEoi = 0xD9, kSos = 0xDA;
constexpr int kApp0 = 0xE0, kApp15 = 0xEF, kCom = 0xFE;

[[noreturn]] void ThrowDamaged() {
    throw Error("The JPEG file is damaged.");
}

[[noreturn]] void ThrowTruncated() {
    throw Error("The JPEG file is truncated.");
}

using Bytes = std::span<const std::uint8_t>;

class LayoutWalk {
  public:
    explicit LayoutWalk(Bytes file) : file_(file) {}

    JpegLayout Run() {
        at_ = 2;
        for (std::size_t segments = 0;; ++segments) {
            if (segments == kMaxSegments)
                throw Error("The JPEG file has too many marker segments.");
            const std::size_t start = at_;
            const int marker = NextMarker();
            if (marker == kEoi) break;
            const Bytes content = TakeSegment();
            if (IsFrame(marker)) ReadFrame(marker, content);
            if (marker == kSos) {
                ReadScan(content);
                layout_.scanBytes.push_back(file_.subspan(start, at_ - start));
            }
            if ((marker >= kApp0 && marker <= kApp15) || marker == kCom) {
                layout_.markers.insert(layout_.markers.end(), file_.data() + start,
                                       file_.data() + at_);
            }
        }
        if (layout_.scans.empty()) ThrowTruncated();
        CheckBlockCount();
        layout_.end = at_;
        return std::move(layout_);
    }

  private:
    static bool IsFrame(int marker) {
        return marker >= kSof0 && marker <= kSof15 && marker != kDht && marker != kJpg &&
               marker != kDac;
    }

    int NextMarker() {
        if (at_ >= file_.size()) ThrowTruncated();
        if (file_[at_] != 0xFF) ThrowDamaged();
        while (at_ < file_.size() && file_[at_] == 0xFF)
            ++at_;
        if (at_ >= file_.size()) ThrowTruncated();
        const int marker = file_[at_++];
        if (marker < kSof0 || (marker >= kRst0 && marker <= kSoi)) ThrowDamaged();
        return marker;
    }

    /// The content after the two bytes of length.
    Bytes TakeSegment() {
        if (file_.size() - at_ < 2) ThrowTruncated();
        const std::size_t length = Word(file_.subspan(at_));
        if (length < 2) ThrowDamaged();
        if (file_.size() - at_ < length) ThrowTruncated();
        const Bytes content = file_.subspan(at_ + 2, length - 2);
        at_ += length;
        return content;
    }

    static unsigned Word(Bytes bytes) { return bytes[0] * 256u + bytes[1]; }

    void ReadFrame(int marker, Bytes content) {
        if (layout_.componentCount != 0 || content.size() < 6) ThrowDamaged();
        if (marker >= kSof9) throw Error("JPEG pictures with arithmetic coding are not supported.");
        if (marker > kSof2)
            throw Error("Lossless and hierarchical JPEG pictures are not supported.");
        if (content[0] != 8) throw Error("JPEG pictures with 12 bits a sample are not supported.");
        const int count = content[5];
        if (count == 4) throw Error("CMYK pictures are not supported.");
        if ((count != 1 && count != 3) || content.size() != 6 + 3 * std::size_t(count))
            ThrowDamaged();
        layout_.isProgressive = marker == kSof2;
        layout_.componentCount = count;
        SetBlockCount(Word(content.subspan(3)), Word(content.subspan(1)), content.subspan(6));
    }

    /// `components`: three bytes each, of which the second holds the sampling factors.
    void SetBlockCount(std::uint64_t width, std::uint64_t height, Bytes components) {
        if (width == 0 || height == 0) ThrowDamaged();
        if (width * height > kMaxPixels) throw Error("The JPEG picture has too many pixels.");
        unsigned mostWide = 1, mostHigh = 1;
        for (std::size_t at = 0; at < components.size(); at += 3) {
            ids_[at / 3] = components[at];
            const unsigned wide = components[at + 1] >> 4, high = components[at + 1] & 15;
            if (wide < 1 || wide > 4 || high < 1 || high > 4) ThrowDamaged();
            mostWide = std::max(mostWide, wide);
            mostHigh = std::max(mostHigh, high);
        }
        const auto blocks = [](std::uint64_t pixels, unsigned factor, std::uint64_t most) {
            return (pixels * factor + 8 * most - 1) / (8 * most);
        };
        for (std::size_t at = 0; at < components.size(); at += 3) {
            const unsigned factors = components[at + 1];
            blockCount_ +=
                blocks(width, factors >> 4, mostWide) * blocks(height, factors & 15, mostHigh);
        }
    }

    void ReadScan(Bytes content) {
        if (layout_.componentCount == 0 || content.empty()) ThrowDamaged();
        JpegScan scan;
        scan.componentCount = content[0];
        if (scan.componentCount < 1 || scan.componentCount > layout_.componentCount) ThrowDamaged();
        if (content.size() != 4 + 2 * std::size_t(scan.componentCount)) ThrowDamaged();
        for (int index = 0; index < scan.componentCount; ++index) {
            scan.components[index] = ComponentWithId(content[1 + 2 * index]);
        }
        if (layout_.isProgressive) {  // a sequential file's parameters say nothing
            const Bytes parameters = content.last(3);
            scan.spectralStart = parameters[0];
            scan.spectralEnd = parameters[1];
            scan.bitHigh = parameters[2] >> 4;
            scan.bitLow = parameters[2] & 15;
        }
        layout_.scans.push_back(scan);
        if (layout_.scans.size() > kMaxScans) throw Error("The JPEG file has too many scans.");
        SkipEntropyCodedData();
    }

    int ComponentWithId(std::uint8_t id) const {
        const auto end = ids_.begin() + layout_.componentCount;
        const auto found = std::find(ids_.begin(), end, id);
        if (found == end) ThrowDamaged();
        return static_cast<int>(found - ids_.begin());
    }

    void SkipEntropyCodedData() {
        const std::size_t start = at_;
        for (;; ++at_) {
            const auto* found = static_cast<const std::uint8_t*>(
                std::memchr(file_.data() + at_, 0xFF, file_.size() - at_));
            if (!found || found + 1 == file_.data() + file_.size()) ThrowTruncated();
            at_ = static_cast<std::size_t>(found - file_.data());
            const int next = file_[at_ + 1];
            if (next != 0 && next != 0xFF && !(next >= kRst0 && next <= kRst7)) break;
        }
        codedBytes_ += at_ - start;
    }

    /// Every block takes at least one bit, so a short file cannot claim a large picture.
    void CheckBlockCount() const {
        if (blockCount_ > 8 * std::uint64_t{codedBytes_}) ThrowTruncated();
    }

    Bytes file_;
    std::size_t at_ = 0;
    std::array<std::uint8_t, 3> ids_{};
    std::uint64_t blockCount_ = 0;
    std::uint64_t codedBytes_ = 0;
    JpegLayout layout_;
};

}  // namespace

bool IsJpeg(Bytes file) {
    return file.size() >= 3 && file[0] == 0xFF && file[1] == kSoi && file[2] == 0xFF;
}

BitsSent SentBits(std::span<const JpegScan> scans) {
    BitsSent sent;
    for (auto& component : sent)
        component.fill(kNotSent);
    for (const JpegScan& scan : scans) {
        for (int index = 0; index < scan.componentCount; ++index) {
            auto* const bits = sent[scan.components[index]].data();
            std::fill(bits + scan.spectralStart, bits + scan.spectralEnd + 1, scan.bitLow);
        }
    }
    return sent;
}

JpegLayout ScanLayout(Bytes file) {
    if (!IsJpeg(file)) ThrowDamaged();
    return LayoutWalk(file).Run();
}

}  // namespace colorizer
