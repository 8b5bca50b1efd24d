#include "windows_system/windows_clipboard.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

#include "platform/run_time_error.h"
#include "windows_system/win32.h"

namespace morpho {

namespace {

RunTimeError Refused() {
    return {ErrorNumber::kDeviceIo, "The clipboard cannot be used now."};
}

// One program at a time may have the clipboard open.
class OpenClipboard {
  public:
    OpenClipboard() {
        constexpr int kTries = 10;
        constexpr DWORD kPauseMilliseconds = 20;
        for (int i = 1; !::OpenClipboard(nullptr); ++i) {
            if (i == kTries) throw Refused();
            ::Sleep(kPauseMilliseconds);
        }
    }
    ~OpenClipboard() { ::CloseClipboard(); }
    OpenClipboard(const OpenClipboard&) = delete;
    OpenClipboard& operator=(const OpenClipboard&) = delete;

    std::string Bytes(UINT format) const {
        const HANDLE memory = ::GetClipboardData(format);
        const void* start = memory != nullptr ? ::GlobalLock(memory) : nullptr;
        if (start == nullptr) return {};
        std::string bytes(static_cast<const char*>(start), ::GlobalSize(memory));
        ::GlobalUnlock(memory);
        return bytes;
    }
    void SetBytes(UINT format, std::string_view bytes) const {
        const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
        if (memory == nullptr) throw std::bad_alloc();
        std::memcpy(::GlobalLock(memory), bytes.data(), bytes.size());
        ::GlobalUnlock(memory);
        if (::SetClipboardData(format, memory) != nullptr) return;  // it is the clipboard's now
        ::GlobalFree(memory);
        throw Refused();
    }
};

// Whether it is a picture or a text that stands in memory. Windows makes other formats of these.
bool IsKept(UINT format) {
    constexpr std::array kFormats = {UINT{CF_TEXT}, UINT{CF_UNICODETEXT}, UINT{CF_OEMTEXT},
                                     UINT{CF_DIB}, UINT{CF_TIFF}};
    constexpr std::array kNames = {L"Rich Text Format", L"HTML Format", L"PNG"};
    return std::ranges::find(kFormats, format) != kFormats.end() ||
           std::ranges::any_of(kNames, [&](const wchar_t* name) {
               return ::RegisterClipboardFormatW(name) == format;
           });
}

// Where the pixels of a picture that begins with its BITMAPINFOHEADER start.
std::size_t OffsetOfPixels(const BITMAPINFOHEADER& header) {
    std::size_t colours = header.biClrUsed;
    if (colours == 0 && header.biBitCount <= 8) colours = std::size_t{1} << header.biBitCount;
    const bool hasMasks =
        header.biSize == sizeof(BITMAPINFOHEADER) && header.biCompression == BI_BITFIELDS;
    return header.biSize + colours * sizeof(RGBQUAD) + (hasMasks ? 3 * sizeof(DWORD) : 0);
}

}  // namespace

std::vector<ClipboardData> WindowsClipboard::Contents() const {
    const OpenClipboard clipboard;
    std::vector<ClipboardData> contents;
    for (UINT format = 0; (format = ::EnumClipboardFormats(format)) != 0;) {
        if (IsKept(format)) contents.push_back({std::to_string(format), clipboard.Bytes(format)});
    }
    return contents;
}

void WindowsClipboard::SetContents(const std::vector<ClipboardData>& contents) {
    const OpenClipboard clipboard;
    if (!::EmptyClipboard()) throw Refused();
    for (const ClipboardData& one : contents) {
        UINT format = 0;
        std::from_chars(one.format.data(), one.format.data() + one.format.size(), format);
        clipboard.SetBytes(format, one.bytes);
    }
}

std::string WindowsClipboard::Picture() const {
    const std::string picture = OpenClipboard().Bytes(CF_DIB);
    BITMAPINFOHEADER header = {};
    if (picture.size() < sizeof header) return {};
    std::memcpy(&header, picture.data(), sizeof header);
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;  // "BM"
    file.bfSize = static_cast<DWORD>(sizeof file + picture.size());
    file.bfOffBits = static_cast<DWORD>(sizeof file + OffsetOfPixels(header));
    return std::string(reinterpret_cast<const char*>(&file), sizeof file) + picture;
}

void WindowsClipboard::SetPicture(std::string_view bitmap) {
    if (bitmap.size() <= sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER) ||
        !bitmap.starts_with("BM"))
        throw RunTimeError(ErrorNumber::kInvalidPicture, "Invalid picture");
    SetContents({{std::to_string(CF_DIB), std::string(bitmap.substr(sizeof(BITMAPFILEHEADER)))}});
}

}  // namespace morpho
