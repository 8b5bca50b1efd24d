#include "web_host/disk.h"

#include <atomic>
#include <charconv>

namespace morpho {

namespace {

// A short name, so that it fits beside a file whose own name is as long as can be.
constexpr std::string_view kStart = ".morpho-";
constexpr std::string_view kEnd = ".tmp";

}  // namespace

std::string NewTemporaryName(std::uint64_t program) {
    static std::atomic<unsigned> serial = 0;
    return std::string(kStart) + std::to_string(program) + '-' + std::to_string(++serial) +
           std::string(kEnd);
}

bool IsTemporaryName(std::string_view name) {
    return name.size() > kStart.size() + kEnd.size() && name.starts_with(kStart) &&
           name.ends_with(kEnd);
}

std::optional<std::uint64_t> ProgramOfTemporaryName(std::string_view name) {
    if (!IsTemporaryName(name)) return {};
    name.remove_prefix(kStart.size());
    std::uint64_t program = 0;
    const auto [stop, error] = std::from_chars(name.data(), name.data() + name.size(), program);
    if (error != std::errc() || *stop != '-') return {};
    return program;
}

}  // namespace morpho
