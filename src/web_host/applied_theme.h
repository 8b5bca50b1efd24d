#pragma once

#include <string>

#include "web_host/web_session.h"

namespace morpho {

// Puts a theme into the web, as "_themes/<name>", and gives it to all pages that take the web's.
// The theme is the user's own of this name, else the one installed for all users, else the one that
// the web has. `name` is a folder name, without regard to case.
//
// Throws RunTimeError when there is no such theme, when its package cannot be trusted, or when it
// cannot be written; then the web is as it was. A page that cannot be written is reported to the
// session and the rest goes on. Pages are changed after the theme is complete.
void ApplyThemeToWeb(WebSession& web, const std::string& name);

// Reports each address of a page that leads to a file which the web's themes do not have.
void LogBrokenThemeAddresses(WebSession& web);

}  // namespace morpho
