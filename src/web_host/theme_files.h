#pragma once

#include <map>
#include <optional>
#include <string>

#include "formats/theme_addresses.h"
#include "web_host/web_files.h"

namespace morpho {

// The names of the files in each theme's folder of a web, listed when first asked for.
class ThemeFiles {
  public:
    explicit ThemeFiles(const WebFiles& web) : web_(web) {}

    // Without regard to letter case.
    bool Has(const std::string& theme, const std::string& file);
    // Where an address of another theme's folder leads when its page gets this theme: to the file
    // of the same name or, for a merged style sheet, to the one for the same effects. Nothing when
    // the address would lead nowhere then, and leads somewhere now.
    std::optional<std::string> FileFor(const ThemeAddress& address, const std::string& theme);

  private:
    using Names = std::map<std::string, std::string>;  // as spelled on the disk, by folded name

    const Names& NamesIn(const std::string& theme);

    const WebFiles& web_;
    std::map<std::string, Names> files_;  // by the theme's folded name
};

}  // namespace morpho
