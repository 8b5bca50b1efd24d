#pragma once

#include <string>

#include "web_host/web_session.h"

namespace morpho {

// Unpacks the theme of this name (see ApplyThemeToWeb) into the web's "_themes/<name>/" and returns
// that folder's name (UTF-8). From the first change on the web's note says that the theme is being
// applied; the caller releases it. Each file is replaced as a whole, the description of a theme
// that is new comes last, files that are no part of the package stay. Throws RunTimeError when that
// fails; then the folder is as it was, as far as the disk allows.
std::string PutThemeIntoWeb(WebSession& web, const std::string& name);

// Whether the user has a theme of this name that differs from the one that the web has: putting it
// into the web would take the web's own away. Throws RunTimeError for a package that cannot be
// trusted.
bool ReplacesThemeOfWeb(const WebSession& web, const std::string& name);

}  // namespace morpho
