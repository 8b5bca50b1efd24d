#include "text/digest.h"

#include <cinttypes>
#include <cstdio>

namespace morpho {

std::uint64_t Fnv1a(std::string_view bytes) {
    std::uint64_t hash = 14695981039346656037U;
    for (const char c : bytes)
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
    return hash;
}

std::string Digest(std::string_view bytes) {
    char hash[24];
    std::snprintf(hash, sizeof hash, "-%016" PRIx64, Fnv1a(bytes));
    return std::to_string(bytes.size()) + hash;
}

}  // namespace morpho
