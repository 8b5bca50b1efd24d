#include "windows_toolkit/picture_peer.h"

namespace morpho {

namespace {

constexpr UINT_PTR kFrameTimer = 1;

}  // namespace

PicturePeer::PicturePeer(PictureBox& box, HWND parent, const PeerContext& context)
    : ControlPeer(box, parent, context, WC_STATICW, 0), box_(box) {}

void PicturePeer::WriteOwn(Aspects changed) {
    if (!(changed & aspect::kPicture)) return;
    // A picture that is too large is not decoded.
    const bool shown = !box_.Picture().empty() && box_.NaturalSize() != Size{};
    picture_ = shown ? ShownPicture::Decode(box_.Picture()) : nullptr;
    if (picture_ == nullptr) box_.PictureFailed();
    StartTimer();
    InvalidateRect(Window(), nullptr, FALSE);
}

void PicturePeer::StartTimer() {
    const UINT duration = picture_ == nullptr ? 0 : picture_->Duration();
    if (duration > 0) {
        SetTimer(Window(), kFrameTimer, duration, nullptr);
    } else {
        KillTimer(Window(), kFrameTimer);
    }
}

std::optional<LRESULT> PicturePeer::OnMessage(UINT message, WPARAM wide, LPARAM) {
    switch (message) {
        case WM_ERASEBKGND:
            return TRUE;
        case WM_PAINT:
            Paint();
            return 0;
        case WM_TIMER:
            if (wide == kFrameTimer) ShowNextFrame();
            return 0;
        default:
            return {};
    }
}

void PicturePeer::ShowNextFrame() {
    if (picture_ == nullptr) return;
    picture_->NextFrame();
    StartTimer();
    InvalidateRect(Window(), nullptr, FALSE);
}

// In memory first, so that nothing flickers.
void PicturePeer::Paint() {
    PAINTSTRUCT paint;
    const HDC screen = BeginPaint(Window(), &paint);
    const RECT part = paint.rcPaint;
    const int width = part.right - part.left, height = part.bottom - part.top;
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP pixels = CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ before = SelectObject(memory, pixels);
    PaintPart(memory, part);
    BitBlt(screen, part.left, part.top, width, height, memory, 0, 0, SRCCOPY);
    SelectObject(memory, before);
    DeleteObject(pixels);
    DeleteDC(memory);
    EndPaint(Window(), &paint);
}

void PicturePeer::PaintPart(HDC device, const RECT& part) {
    const RECT all{0, 0, part.right - part.left, part.bottom - part.top};
    FillRect(device, &all, GetSysColorBrush(COLOR_BTNFACE));
    if (picture_ == nullptr) return;
    RECT place = PicturePlace();
    OffsetRect(&place, -part.left, -part.top);
    picture_->Draw(device, place);
}

RECT PicturePeer::PicturePlace() const {
    RECT place{};
    if (box_.Stretch()) {
        GetClientRect(Window(), &place);
    } else {
        place.right = Pixels(static_cast<int>(picture_->Pixels().cx) * kTwipsPerPixel);
        place.bottom = Pixels(static_cast<int>(picture_->Pixels().cy) * kTwipsPerPixel);
    }
    return place;
}

}  // namespace morpho
