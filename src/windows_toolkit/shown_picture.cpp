#include "windows_toolkit/shown_picture.h"

#include <vector>

#include "windows_com/com_pointer.h"
#include "windows_toolkit/gdi_plus.h"

namespace morpho {

namespace {

class GdiPlusPicture : public ShownPicture {
  public:
    explicit GdiPlusPicture(std::string_view encoded) {
        if (!gdiPlus_.Started()) return;
        stream_ = ComPointer<IStream>::Adopt(SHCreateMemStream(
            reinterpret_cast<const BYTE*>(encoded.data()), static_cast<UINT>(encoded.size())));
        if (!stream_) return;
        source_.reset(Gdiplus::Bitmap::FromStream(stream_.Get()));
        if (source_ == nullptr || source_->GetLastStatus() != Gdiplus::Ok) return;
        durations_ = FrameDurations();
        DecodeFrame();
    }

    bool IsValid() const { return frame_ != nullptr; }

    SIZE Pixels() const override {
        return {static_cast<LONG>(frame_->GetWidth()), static_cast<LONG>(frame_->GetHeight())};
    }

    UINT Duration() const override { return durations_.empty() ? 0 : durations_[at_]; }

    void NextFrame() override {
        at_ = (at_ + 1) % durations_.size();
        source_->SelectActiveFrame(&Gdiplus::FrameDimensionTime, static_cast<UINT>(at_));
        DecodeFrame();
    }

    void Draw(HDC device, const RECT& place) override {
        const Gdiplus::Rect to(place.left, place.top, place.right - place.left,
                               place.bottom - place.top);
        Gdiplus::Graphics graphics(device);
        if (to.Width > Pixels().cx || to.Height > Pixels().cy || IsFrameSize(to)) {
            DrawScaled(graphics, *frame_, to);
            return;
        }
        // A smaller one is scaled once, then only copied.
        if (fitted_ == nullptr || static_cast<int>(fitted_->GetWidth()) != to.Width ||
            static_cast<int>(fitted_->GetHeight()) != to.Height) {
            fitted_ = Copy(*frame_, to.Width, to.Height);
        }
        if (fitted_ != nullptr) DrawScaled(graphics, *fitted_, to);
    }

  private:
    using BitmapPointer = std::unique_ptr<Gdiplus::Bitmap>;

    bool IsFrameSize(const Gdiplus::Rect& place) const {
        return place.Width == Pixels().cx && place.Height == Pixels().cy;
    }

    // Empty for a still picture.
    std::vector<UINT> FrameDurations() {
        std::vector<UINT> durations;
        const UINT frames = source_->GetFrameCount(&Gdiplus::FrameDimensionTime);
        const UINT size = source_->GetPropertyItemSize(PropertyTagFrameDelay);
        if (frames < 2 || size == 0) return durations;
        std::vector<BYTE> buffer(size);
        auto* const delays = reinterpret_cast<Gdiplus::PropertyItem*>(buffer.data());
        if (source_->GetPropertyItem(PropertyTagFrameDelay, size, delays) != Gdiplus::Ok ||
            delays->length < frames * sizeof(UINT))
            return durations;
        // In hundredths of a second. Browsers, too, take one that is hardly visible for a tenth.
        for (UINT frame = 0; frame < frames; ++frame) {
            const UINT delay = static_cast<const UINT*>(delays->value)[frame];
            durations.push_back(delay < 2 ? 100 : delay * 10);
        }
        return durations;
    }

    // The library decodes at every drawing. A copy of the pixels is drawn at once.
    void DecodeFrame() {
        BitmapPointer frame = Copy(*source_, static_cast<int>(source_->GetWidth()),
                                   static_cast<int>(source_->GetHeight()));
        if (frame == nullptr) return;
        frame_ = std::move(frame);
        fitted_ = nullptr;
        if (durations_.empty()) {
            source_ = nullptr;
            stream_ = nullptr;
        }
    }

    // Null when there is no memory or the picture is damaged.
    static BitmapPointer Copy(Gdiplus::Image& picture, int width, int height) {
        auto copy = std::make_unique<Gdiplus::Bitmap>(width, height, PixelFormat32bppPARGB);
        if (copy->GetLastStatus() != Gdiplus::Ok) return nullptr;
        Gdiplus::Graphics graphics(copy.get());
        return DrawScaled(graphics, picture, {0, 0, width, height}) ? std::move(copy) : nullptr;
    }

    static bool DrawScaled(Gdiplus::Graphics& graphics, Gdiplus::Image& picture,
                           const Gdiplus::Rect& place) {
        const auto width = static_cast<int>(picture.GetWidth());
        const auto height = static_cast<int>(picture.GetHeight());
        const bool scaled = width != place.Width || height != place.Height;
        graphics.SetInterpolationMode(scaled ? Gdiplus::InterpolationModeHighQualityBicubic
                                             : Gdiplus::InterpolationModeNearestNeighbor);
        graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
        // What lies beyond the edges counts for the pixels there.
        Gdiplus::ImageAttributes mirrored;
        mirrored.SetWrapMode(Gdiplus::WrapModeTileFlipXY);
        return graphics.DrawImage(&picture, place, 0, 0, width, height, Gdiplus::UnitPixel,
                                  &mirrored) == Gdiplus::Ok;
    }

    GdiPlus gdiPlus_;
    ComPointer<IStream> stream_;  // the source reads it frame by frame
    std::unique_ptr<Gdiplus::Bitmap> source_;
    std::vector<UINT> durations_;
    std::size_t at_ = 0;
    BitmapPointer frame_;
    BitmapPointer fitted_;
};

}  // namespace

std::unique_ptr<ShownPicture> ShownPicture::Decode(std::string_view encoded) {
    auto picture = std::make_unique<GdiPlusPicture>(encoded);
    if (!picture->IsValid()) return nullptr;
    return picture;
}

}  // namespace morpho
