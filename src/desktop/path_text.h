#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace morpho {

// Paths as UTF-8 and back. The conversions of std::filesystem::path from and to std::string mean
// another encoding on Windows.

inline std::string TextOf(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

inline std::filesystem::path PathOf(std::string_view text) {
    return std::u8string(text.begin(), text.end());
}

}  // namespace morpho
