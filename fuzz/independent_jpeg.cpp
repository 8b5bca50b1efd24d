#include "fuzz/independent_jpeg.h"

#include <cstdio>
#include <memory>
#include <string_view>

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_JPEG
#define STBI_NO_STDIO
#include <stb/stb_image.h>

namespace {

// Decoding more takes longer than all that is tested here.
constexpr std::uint64_t kMaxPixels = std::uint64_t{1} << 22;

// Sampling factors such as 2 and 3 in one picture.
bool IsLimitOfDecoder(std::string_view reason) {
    return reason == "bad H" || reason == "bad V";
}

}  // namespace

Decoded DecodeIndependently(std::span<const std::uint8_t> file, unsigned width, unsigned height) {
    if (std::uint64_t{width} * height > kMaxPixels) return Decoded::kNotSupported;
    int wide = 0, high = 0, components = 0;
    const std::unique_ptr<stbi_uc, decltype(&stbi_image_free)> pixels(
        stbi_load_from_memory(file.data(), static_cast<int>(file.size()), &wide, &high, &components,
                              0),
        &stbi_image_free);
    if (pixels && static_cast<unsigned>(wide) == width && static_cast<unsigned>(high) == height)
        return Decoded::kWell;
    const std::string_view reason = pixels ? "another size" : stbi_failure_reason();
    if (IsLimitOfDecoder(reason)) return Decoded::kNotSupported;
    std::fprintf(stderr, "%.*s\n", static_cast<int>(reason.size()), reason.data());
    return Decoded::kWrongly;
}
