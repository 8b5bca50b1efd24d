#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace morpho {

// Handle of an open registry key, or one of the predefined roots below; 0 is no key.
using RegHandle = std::uint32_t;

inline constexpr RegHandle kClassesRoot = 0x80000000;
inline constexpr RegHandle kCurrentUser = 0x80000001;
inline constexpr RegHandle kLocalMachine = 0x80000002;

// Value types, numbered as the system does.
enum class RegType : std::int32_t {
    kString = 1,
    kExpandString = 2,
    kBinary = 3,
    kDword = 4,
    kLink = 6,
    kMultiString = 7,
};

// System error codes that implementations return; 0 is success.
inline constexpr std::int32_t kRegSuccess = 0;
inline constexpr std::int32_t kRegFileNotFound = 2;
inline constexpr std::int32_t kRegAccessDenied = 5;
inline constexpr std::int32_t kRegInvalidHandle = 6;
inline constexpr std::int32_t kRegWriteFault = 29;

// The registry calls of the system. Every call returns a system error code and never throws.
// Key paths and value names are UTF-8, separated by "\" and compared without regard to case.
// The data of string values is UTF-8 too, with or without a terminating NUL, as it was stored.
class Registry {
  public:
    virtual ~Registry() = default;

    virtual std::int32_t OpenKey(RegHandle root, std::string_view path, RegHandle& key) = 0;
    // Opens the key and creates it, with its parents, when it is missing.
    virtual std::int32_t CreateKey(RegHandle root, std::string_view path, RegHandle& key) = 0;
    virtual std::int32_t CloseKey(RegHandle key) = 0;

    // The value's type and data; an empty name is the key's default value.
    virtual std::int32_t QueryValue(RegHandle key, std::string_view name, RegType& type,
                                    std::vector<std::byte>& data) = 0;
    virtual std::int32_t SetValue(RegHandle key, std::string_view name, RegType type,
                                  std::span<const std::byte> data) = 0;
    virtual std::int32_t DeleteValue(RegHandle key, std::string_view name) = 0;
};

}  // namespace morpho
