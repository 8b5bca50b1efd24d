#include "program/colorizer_adapter.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <new>

#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "platform/run_time_error.h"

namespace morpho {

namespace {

std::string Located(const std::string& path) {
    const auto diskPath = FindOnDisk(path);
    if (diskPath) return *diskPath;
    throw FileError(ErrorNumber::kPathNotFound, path, "cannot be recoloured",
                    "it is no path below \"Z:\\\"");
}

void RequireExisting(const std::string& diskPath) {
    std::error_code ignored;
    if (!std::filesystem::exists(diskPath, ignored))
        throw FileError(ENOENT, diskPath, "cannot be recoloured");
}

}  // namespace

void ColorizerAdapter::SetQuality(std::int16_t factor) {
    quality_ = std::clamp<int>(factor, 1, 100);
}

void ColorizerAdapter::Colorize() {
    const std::string source = Located(source_);
    const std::string destination = Located(destination_);
    RequireExisting(source);
    RequireExisting(ParentFolder(destination));
    try {
        recolorer_.Recolor(source, destination, adjustment_, quality_);
    } catch (const colorizer::Error& error) {
        throw RunTimeError(ErrorNumber::kInvalidPicture, error.what());
    } catch (const std::bad_alloc&) {
        throw FileError(ErrorNumber::kOutOfMemory, source, "cannot be recoloured",
                        "memory is exhausted");
    }
}

}  // namespace morpho
