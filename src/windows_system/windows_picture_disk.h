#pragma once

#include "colorizer_adapter/picture_disk.h"

namespace morpho {

// The disks of Windows, as recolouring pictures needs them.
class WindowsPictureDisk : public PictureDisk {
  public:
    std::optional<std::filesystem::path> PathOnDisk(std::string_view inside) const override;
    colorizer::FileHooks PictureHooks() const override;
    RunTimeError FileError(const std::error_code& code, const std::filesystem::path& path,
                           std::string_view failure) const override;
};

}  // namespace morpho
