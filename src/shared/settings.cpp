#include "shared/settings.h"

#include "platform/environment.h"
#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "shared/numbers.h"
#include "shared/reg_key.h"

namespace morpho {

namespace {

std::string SettingsPath(std::string_view application, std::string_view section) {
    return "Software\\VB and VBA Program Settings\\" + std::string(application) + '\\' +
           std::string(section);
}

}  // namespace

std::string GetSetting(const Platform& platform, std::string_view application,
                       std::string_view section, std::string_view key, std::string_view fallback) {
    std::string value(fallback);
    GetRegString(platform, kCurrentUser, SettingsPath(application, section), key, value);
    return value;
}

int GetSettingNumber(const Platform& platform, std::string_view application,
                     std::string_view section, std::string_view key, int fallback) {
    const std::string text =
        GetSetting(platform, application, section, key, std::to_string(fallback));
    try {
        return WholeNumber(Val(text));
    } catch (const RunTimeError&) {
        return fallback;
    }
}

bool SaveSetting(const Platform& platform, std::string_view application, std::string_view section,
                 std::string_view key, std::string_view value) {
    RegKey settings(platform.registry, platform.environment);
    return settings.CreateKey(kCurrentUser, SettingsPath(application, section)) &&
           settings.SetValueEx_SZ(key, value);
}

bool DeleteSetting(const Platform& platform, std::string_view application, std::string_view section,
                   std::string_view key) {
    RegKey settings(platform.registry, platform.environment);
    return settings.OpenKey(kCurrentUser, SettingsPath(application, section)) &&
           platform.registry.DeleteValue(settings.hKey(), key) == kRegSuccess;
}

}  // namespace morpho
