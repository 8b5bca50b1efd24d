#include "colorizer_adapter/colorizer_adapter.h"

#include <algorithm>
#include <filesystem>
#include <new>

#include "platform/run_time_error.h"

namespace morpho {

namespace {

constexpr std::string_view kFailure = "cannot be recoloured";

}  // namespace

std::filesystem::path ColorizerAdapter::Located(const std::string& path) const {
    const auto diskPath = disk_.PathOnDisk(path);
    if (diskPath) return *diskPath;
    throw RunTimeError(ErrorNumber::kPathNotFound,
                       "\"" + path + "\" " + std::string(kFailure) + ": it is on no disk.");
}

void ColorizerAdapter::RequireExisting(const std::filesystem::path& path) const {
    std::error_code ignored;
    if (!std::filesystem::exists(path, ignored))
        throw disk_.FileError(std::make_error_code(std::errc::no_such_file_or_directory), path,
                              kFailure);
}

void ColorizerAdapter::SetQuality(std::int16_t factor) {
    quality_ = std::clamp<int>(factor, 1, 100);
}

void ColorizerAdapter::Colorize() {
    const std::filesystem::path source = Located(source_);
    const std::filesystem::path destination = Located(destination_);
    RequireExisting(source);
    RequireExisting(destination.parent_path());
    try {
        recolorer_.Recolor(source, destination, adjustment_, quality_);
    } catch (const colorizer::Error& error) {
        throw RunTimeError(ErrorNumber::kInvalidPicture, error.what());
    } catch (const std::bad_alloc&) {
        throw disk_.FileError(std::make_error_code(std::errc::not_enough_memory), source, kFailure);
    }
}

}  // namespace morpho
