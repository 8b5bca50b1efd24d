#pragma once

#include <string>

#include "web_host/web_files.h"

namespace morpho {

// The theme that the web as a whole uses, told from its pages: the home page's, else the one that
// most of the pages in the web's root folder take. Empty when there is none.
std::string ThemeOfWeb(const Folder& root);

// Whether a page has this theme, one of its own or the web's.
bool HasPageWithTheme(const WebFiles& web, const std::string& theme);

}  // namespace morpho
