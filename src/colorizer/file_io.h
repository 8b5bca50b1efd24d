#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "colorizer/recolorer.h"

namespace colorizer {

/// The whole file. Throws Error if it is missing, not a file, unreadable or longer than
/// kMaxFileBytes.
std::vector<std::uint8_t> ReadFile(const std::filesystem::path& path);

/// Replaces or creates the file as a whole, by way of a new file beside it; that one is gone again
/// after a failure. Throws Error.
void WriteWholeFile(const std::filesystem::path& path, std::span<const std::uint8_t> bytes,
                    const FileHooks& hooks);

/// True when both names mean one existing file.
bool IsSameFile(const std::filesystem::path& left, const std::filesystem::path& right);

/// What tells whether a file is still the one that was written: size and time, and the
/// version that the hooks tell. Throws nothing.
struct FileStamp {
    std::uintmax_t size = static_cast<std::uintmax_t>(-1);
    std::filesystem::file_time_type time{};
    std::uint64_t version = 0;

    static FileStamp Of(const std::filesystem::path& path, const FileHooks& hooks);
    bool IsValid() const { return size != static_cast<std::uintmax_t>(-1); }
    bool operator==(const FileStamp&) const = default;
};

}  // namespace colorizer
