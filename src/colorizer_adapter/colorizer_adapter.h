#pragma once

#include <optional>

#include "colorizer/recolorer.h"
#include "colorizer_adapter/picture_disk.h"
#include "platform/colorizer.h"

namespace morpho {

// The recolouring library as the component that the editors use. A chain of passes on one object is
// fast: the library remembers the picture it wrote last.
class ColorizerAdapter : public Colorizer {
  public:
    // `disk` must outlive it.
    explicit ColorizerAdapter(const PictureDisk& disk)
        : disk_(disk), recolorer_(disk.PictureHooks()) {}

    std::string SourceFile() const override { return source_; }
    void SetSourceFile(const std::string& path) override { source_ = path; }
    std::string DestinationFile() const override { return destination_; }
    void SetDestinationFile(const std::string& path) override { destination_ = path; }

    void SetHue(double degrees) override { adjustment_.hueDegrees = degrees; }
    void SetSaturation(double factor) override { adjustment_.saturation = factor; }
    void SetBrightness(double factor) override { adjustment_.brightness = factor; }
    void SetQuality(
        std::int16_t factor) override;  // 0 counts as 1: the editors' scroll bars reach it
    void SetAuxParameter1(double) override {}
    void SetAuxParameter2(double) override {}

    // kFileNotFound and kPathNotFound for files that are not there, kInvalidPicture for a picture
    // that the library refuses.
    void Colorize() override;

  private:
    // The path of the disk. Throws RunTimeError for a path on no disk.
    std::filesystem::path Located(const std::string& path) const;
    void RequireExisting(const std::filesystem::path& path) const;

    const PictureDisk& disk_;
    std::string source_;
    std::string destination_;
    colorizer::Adjustment adjustment_;
    std::optional<int> quality_;
    colorizer::Recolorer recolorer_;
};

class ColorizerAdapterFactory : public ColorizerFactory {
  public:
    explicit ColorizerAdapterFactory(const PictureDisk& disk) : disk_(disk) {}
    std::unique_ptr<Colorizer> Create() override {
        return std::make_unique<ColorizerAdapter>(disk_);
    }

  private:
    const PictureDisk& disk_;
};

}  // namespace morpho
