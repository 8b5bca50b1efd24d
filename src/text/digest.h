#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace morpho {

// The 64-bit FNV-1a hash of the bytes. Not safe against collisions made on purpose.
std::uint64_t Fnv1a(std::string_view bytes);

// Length and hash of a file's bytes in one word, "5-cbf29ce484222325".
std::string Digest(std::string_view bytes);

}  // namespace morpho
