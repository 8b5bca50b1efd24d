#include "windows_toolkit/window_picture.h"

#include <memory>
#include <type_traits>

#include "windows_com/com_pointer.h"
#include "windows_toolkit/gdi_plus.h"

namespace morpho {

namespace {

// Of the PNG encoder that is a part of GDI+.
constexpr CLSID kPngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

struct DeletingContext {
    void operator()(HDC context) const { DeleteDC(context); }
};
struct DeletingBitmap {
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using BitmapPointer = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeletingBitmap>;

// The window's own pixels, with those of the windows in it. With desktop composition, which Windows
// 8 and later always have, what stands over it does not show. (PrintWindow asks each window to draw
// itself, which not all do.)
BitmapPointer PixelsOf(HWND window, HDC screen) {
    RECT inner{};
    GetClientRect(window, &inner);
    const std::unique_ptr<std::remove_pointer_t<HDC>, DeletingContext> context(
        CreateCompatibleDC(screen));
    BitmapPointer bitmap(CreateCompatibleBitmap(screen, inner.right, inner.bottom));
    if (!context || !bitmap) return nullptr;
    const HGDIOBJ before = SelectObject(context.get(), bitmap.get());
    const BOOL copied =
        BitBlt(context.get(), 0, 0, inner.right, inner.bottom, screen, 0, 0, SRCCOPY);
    SelectObject(context.get(), before);
    return copied ? std::move(bitmap) : nullptr;
}

std::string BytesOf(IStream& stream) {
    STATSTG about{};
    if (FAILED(stream.Stat(&about, STATFLAG_NONAME))) return {};
    std::string bytes(static_cast<std::size_t>(about.cbSize.QuadPart), '\0');
    ULONG read = 0;
    const bool isAll =
        SUCCEEDED(stream.Seek({}, STREAM_SEEK_SET, nullptr)) &&
        SUCCEEDED(stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), &read)) &&
        read == bytes.size();
    return isAll ? bytes : std::string();
}

std::string PngOf(HBITMAP bitmap) {
    const GdiPlus gdiPlus;
    if (!gdiPlus.Started()) return {};
    const std::unique_ptr<Gdiplus::Bitmap> picture(Gdiplus::Bitmap::FromHBITMAP(bitmap, nullptr));
    const auto stream = ComPointer<IStream>::Adopt(SHCreateMemStream(nullptr, 0));
    if (!picture || !stream || picture->Save(stream.Get(), &kPngEncoder, nullptr) != Gdiplus::Ok)
        return {};
    return BytesOf(*stream.Get());
}

}  // namespace

std::string PictureOfWindow(HWND window) {
    const HDC screen = GetDCEx(window, nullptr, DCX_CACHE);
    if (screen == nullptr) return {};
    const BitmapPointer bitmap = PixelsOf(window, screen);
    ReleaseDC(window, screen);
    return bitmap ? PngOf(bitmap.get()) : std::string();
}

}  // namespace morpho
