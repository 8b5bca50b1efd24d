#pragma once

#include <string>
#include <vector>

namespace morpho {

struct Platform;

// The webs that were opened last, the latest first: paths of the disk, kept in the user's settings.
std::vector<std::string> RecentWebs(const Platform& platform);

// Puts a web first. At most eight are kept.
void AddRecentWeb(const Platform& platform, const std::string& folder);

}  // namespace morpho
