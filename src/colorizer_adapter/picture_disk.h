#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

#include "colorizer/recolorer.h"
#include "platform/run_time_error.h"

namespace morpho {

// What recolouring pictures needs of the system.
class PictureDisk {
  public:
    virtual ~PictureDisk() = default;

    // The path of the disk for a Windows path, UTF-8; finds a file without regard to letter case.
    // Nothing for a path on no disk.
    virtual std::optional<std::filesystem::path> PathOnDisk(std::string_view inside) const = 0;
    virtual colorizer::FileHooks PictureHooks() const = 0;
    // The error for a file call that failed with `code`. `failure` completes the sentence: "could
    // not be read".
    virtual RunTimeError FileError(const std::error_code& code, const std::filesystem::path& path,
                                   std::string_view failure) const = 0;
};

}  // namespace morpho
