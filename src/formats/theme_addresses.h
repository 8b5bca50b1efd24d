#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace morpho {

// An address in a page that leads into a theme's folder of the web, "../_themes/NAME/FILE".
struct ThemeAddress {
    std::size_t nameBegin = 0;  // place of NAME in the page
    std::size_t nameLength = 0;
    std::string theme;          // NAME with its escapes resolved, UTF-8
    std::size_t fileBegin = 0;  // place of FILE in the page
    std::size_t fileLength = 0;
    std::string file;  // FILE likewise
};

// Which file of another theme such an address leads to when the page gets that theme: a name,
// UTF-8. Nothing where the address stays as it is.
using FileInNewTheme = std::function<std::optional<std::string>(const ThemeAddress&)>;

// All such addresses in a page's tags, comments, scripts and styles, in order; what a reader sees
// of the page as text has none. Before "_themes" stand only steps upwards, or "/": what leads to
// another folder or host is another web's. `page` has ASCII in it (see PageText).
std::vector<ThemeAddress> ThemeAddresses(std::string_view page);

// A style sheet that goes into a theme's folder, without addresses of other themes' folders:
// "../old/x.gif" and "../../_themes/old/x.gif" become "x.gif" where `isOwn` says that the theme has
// a file of that name (UTF-8). All else stays byte for byte.
std::string WithOwnPictures(std::string_view css,
                            const std::function<bool(const std::string&)>& isOwn);

}  // namespace morpho
