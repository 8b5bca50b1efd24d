#pragma once

#include <string>

#include "web_host/web_files.h"

namespace morpho {

class WebSession;

// The theme that a page names in its theme tag; empty where it names none. Throws RunTimeError when
// the page cannot be read.
std::string NameOfPageTheme(const WebSession& web, const WebPath& page);

// Gives one page a theme of the web as its own, whatever the web's theme is. The page is replaced
// as a whole. Returns a sentence for the person when files of the earlier theme are still used,
// because the new one does not have them; else an empty text. Throws RunTimeError when the web does
// not have the theme, the page cannot be changed, or another program saves in the web.
std::string GiveThemeToPage(WebSession& web, const WebPath& page, const std::string& theme);

}  // namespace morpho
