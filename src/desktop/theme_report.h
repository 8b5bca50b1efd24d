#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "theme_editor/frm_theme_morpho.h"

namespace morpho {

// The elements of the loaded theme as JSON: key, file and image group.
nlohmann::ordered_json ElementsReport(const frmThemeMorpho& window);

// What `morpho recolor --json` prints: the elements with what became of them, and the depth of the
// history.
nlohmann::ordered_json RecolorReport(const frmThemeMorpho& window);

// JSON as text; bytes that are not UTF-8 become replacement characters.
std::string JsonText(const nlohmann::ordered_json& report);

}  // namespace morpho
