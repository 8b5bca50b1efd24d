#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "web_host/web_files.h"

namespace morpho {

// The names that the home page of a folder may have, the best first.
inline constexpr std::array<std::string_view, 4> kHomePages = {"index.htm", "index.html",
                                                               "default.htm", "default.html"};

// Whether a file of this name is a page.
bool IsPageName(std::string_view name);

// Calls `visit` with each folder of the web that may hold pages, its address relative to the web
// ("gallery/" or empty) and its entries: all folders but those of the host ("_themes", "_vti_..."),
// hidden ones and other webs. Links are not followed. `report` gets the reason of a folder that
// cannot be read; the walk goes on.
void VisitPageFolders(
    const WebFiles& web,
    const std::function<void(const std::shared_ptr<Folder>& folder, const std::string& url,
                             const std::vector<FolderEntry>& entries)>& visit,
    const std::function<void(const std::string&)>& report);

}  // namespace morpho
