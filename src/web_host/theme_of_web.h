#pragma once

#include <string>

#include "formats/theme_mark.h"
#include "web_host/web_files.h"

namespace morpho {

// The theme that the web as a whole uses, told from its pages: the home page's, else the one that
// most of the pages in the web's root folder take. Empty when there is none.
std::string ThemeOfWeb(const Folder& root);

// Whether the web has a page that is chosen so.
bool HasPage(const WebFiles& web, const PageChoice& choice);

}  // namespace morpho
