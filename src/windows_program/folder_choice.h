#pragma once

#include <filesystem>

namespace morpho {

// Asks for a folder of a web with the dialog of Windows. Empty when the person cancels, or where
// there is no such dialog.
std::filesystem::path ChooseWebFolder();

}  // namespace morpho
