#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace morpho {

inline constexpr std::uint32_t kWindows9xPlatform = 1;
inline constexpr std::uint32_t kWindowsNtPlatform = 2;

struct OsVersion {
    std::uint32_t platformId = 0;  // kWindows9xPlatform, kWindowsNtPlatform or another system
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
    std::uint32_t build = 0;
    std::string servicePack = {};  // may be empty
    std::string description = {};  // for the log, when the platform is another; one line
};

// This component's own version, as built.
struct ComponentVersion {
    std::string title;  // the product word, "Morpho"
    int major = 0;
    int minor = 0;
    int revision = 0;
    std::string comments;  // may be empty
};

// The surroundings of the process: variables, versions, system messages.
class Environment {
  public:
    virtual ~Environment() = default;

    // The value of an environment variable, UTF-8; empty when it is not set. TMP and TEMP are
    // Windows paths.
    virtual std::string Variable(std::string_view name) const = 0;
    virtual OsVersion Os() const = 0;
    virtual ComponentVersion Version() const = 0;
    // The folder this component was loaded from, without a trailing "\".
    virtual std::string ModuleFolder() const = 0;
    // The system's message text for a system error code; empty when it has none.
    virtual std::string SystemMessage(std::int32_t code) const = 0;
};

}  // namespace morpho
