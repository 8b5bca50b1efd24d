#pragma once

#include <string>
#include <string_view>

#include "linux/disk_folder.h"

namespace morpho {

// Whether a file of this name is a page.
bool IsPageName(std::string_view name);

// The theme that the web as a whole uses, told from its pages: the home page's, else the one that
// most of the pages in the web's root folder take. Empty when there is none.
std::string ThemeOfWeb(const DiskFolder& web);

}  // namespace morpho
