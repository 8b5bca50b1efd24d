#pragma once

#include <string>
#include <string_view>

namespace morpho {

struct Platform;

// The section in which both editors keep all their settings.
inline constexpr std::string_view kWindowSection = "Window";

// The user's settings, kept as classic Basic programs do: texts (REG_SZ) below HKEY_CURRENT_USER in
// Software\VB and VBA Program Settings\<application>\<section>.

// `fallback` when the setting is missing or not a text.
std::string GetSetting(const Platform& platform, std::string_view application,
                       std::string_view section, std::string_view key, std::string_view fallback);

// The setting's leading number, rounded to a whole one (see Val); 0 when it has none. `fallback`
// when it is missing or too large.
int GetSettingNumber(const Platform& platform, std::string_view application,
                     std::string_view section, std::string_view key, int fallback);

// False when the setting could not be stored; never throws. A lost setting does no harm later, so
// it must not keep a window from closing.
bool SaveSetting(const Platform& platform, std::string_view application, std::string_view section,
                 std::string_view key, std::string_view value);

// False when there was no such setting or it could not be deleted; never throws.
bool DeleteSetting(const Platform& platform, std::string_view application, std::string_view section,
                   std::string_view key);

}  // namespace morpho
