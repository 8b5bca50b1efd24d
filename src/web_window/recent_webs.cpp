#include "web_window/recent_webs.h"

#include "platform/platform.h"
#include "shared/settings.h"

namespace morpho {

namespace {

constexpr std::size_t kMaxWebs = 8;  // more would be looked for, not seen
constexpr std::string_view kApplication = "Morpho";
constexpr std::string_view kSection = "Recent Webs";

std::string KeyOf(std::size_t index) {
    return "Web" + std::to_string(index + 1);
}

}  // namespace

std::vector<std::string> RecentWebs(const Platform& platform) {
    std::vector<std::string> webs;
    for (std::size_t i = 0; i < kMaxWebs; ++i) {
        const std::string web = GetSetting(platform, kApplication, kSection, KeyOf(i), "");
        if (!web.empty()) webs.push_back(web);
    }
    return webs;
}

void AddRecentWeb(const Platform& platform, const std::string& folder) {
    std::vector<std::string> webs = RecentWebs(platform);
    std::erase(webs, folder);
    webs.insert(webs.begin(), folder);
    for (std::size_t i = 0; i < kMaxWebs && i < webs.size(); ++i)
        SaveSetting(platform, kApplication, kSection, KeyOf(i), webs[i]);
}

}  // namespace morpho
