#pragma once

#include <string>

#include "web_host/disk.h"

namespace morpho {

// The theme that the web as a whole uses, told from its pages: the home page's, else the one that
// most of the pages in the web's root folder take. Empty when there is none.
std::string ThemeOfWeb(const Folder& root);

}  // namespace morpho
