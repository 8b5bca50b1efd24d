#include "forms/picture_size.h"

namespace morpho {

namespace {

// Width and height as the headers store them: up to 32 bits.
struct Stated {
    std::int64_t width = 0;
    std::int64_t height = 0;
};

// Bytes beyond the end read as 0, which leads to a size of 0.
std::uint32_t ByteAt(std::string_view bytes, std::size_t at) {
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

std::uint32_t Little16(std::string_view bytes, std::size_t at) {
    return ByteAt(bytes, at) | ByteAt(bytes, at + 1) << 8;
}

std::uint32_t Little32(std::string_view bytes, std::size_t at) {
    return Little16(bytes, at) | Little16(bytes, at + 2) << 16;
}

std::uint32_t Big16(std::string_view bytes, std::size_t at) {
    return ByteAt(bytes, at) << 8 | ByteAt(bytes, at + 1);
}

std::uint32_t Big32(std::string_view bytes, std::size_t at) {
    return Big16(bytes, at) << 16 | Big16(bytes, at + 2);
}

// An old header has 16-bit sizes. A negative height means that the rows run from top to bottom.
Stated StatedByBmp(std::string_view bytes) {
    constexpr std::uint32_t kOldHeader = 12;
    if (Little32(bytes, 14) == kOldHeader) return {Little16(bytes, 18), Little16(bytes, 20)};
    const std::int64_t height = static_cast<std::int32_t>(Little32(bytes, 22));
    return {static_cast<std::int32_t>(Little32(bytes, 18)), height < 0 ? -height : height};
}

// The frame header is the segment with a marker from C0 to CF; three of these mean something else.
bool IsFrameHeader(std::uint32_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

Stated StatedByJpeg(std::string_view bytes) {
    std::size_t at = 2;
    while (at < bytes.size() && ByteAt(bytes, at) == 0xFF) {
        const std::uint32_t marker = ByteAt(bytes, at + 1);
        if (IsFrameHeader(marker)) return {Big16(bytes, at + 7), Big16(bytes, at + 5)};
        // A marker may be preceded by any number of fill bytes.
        at += marker == 0xFF ? 1 : 2 + Big16(bytes, at + 2);
    }
    return {};
}

Stated StatedBy(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xD8")) return StatedByJpeg(bytes);
    if (bytes.starts_with("GIF8")) return {Little16(bytes, 6), Little16(bytes, 8)};
    if (bytes.starts_with("\x89PNG\r\n\x1A\n")) return {Big32(bytes, 16), Big32(bytes, 20)};
    if (bytes.starts_with("BM")) return StatedByBmp(bytes);
    return {};
}

}  // namespace

Size PictureSize(std::string_view encoded) {
    const Stated stated = StatedBy(encoded);
    if (stated.width <= 0 || stated.height <= 0) return {};
    if (stated.width > kMaxShownPixels / stated.height) return {};
    return {static_cast<int>(stated.width), static_cast<int>(stated.height)};
}

}  // namespace morpho
