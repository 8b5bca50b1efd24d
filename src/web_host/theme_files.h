#pragma once

#include <map>
#include <set>
#include <string>

#include "web_host/web_files.h"

namespace morpho {

// The names of the files in each theme's folder of a web, listed when first asked for.
class ThemeFiles {
  public:
    explicit ThemeFiles(const WebFiles& web) : web_(web) {}

    // Without regard to letter case.
    bool Has(const std::string& theme, const std::string& file);

  private:
    const std::set<std::string>& Listed(const std::string& theme, const std::string& key);

    const WebFiles& web_;
    std::map<std::string, std::set<std::string>> files_;  // by theme; all folded
};

}  // namespace morpho
