#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "web_host/web_files.h"

namespace morpho {

// A meta-property of the web as its own settings say, "_vti_pvt/service.cnf"; nothing when it is
// not set. Throws RunTimeError when the settings cannot be read.
std::optional<std::string> WebSetting(const WebFiles& web, std::string_view key);

}  // namespace morpho
