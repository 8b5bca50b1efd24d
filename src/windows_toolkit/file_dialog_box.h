#pragma once

#include <optional>
#include <string>

#include "forms/file_dialog.h"
#include "windows_system/win32.h"

namespace morpho {

// Shows the system's common file dialog on this window. The path of the file that the person chose;
// nothing when the person cancelled.
std::optional<std::string> RunFileDialog(HWND owner, const FileDialog& request);

}  // namespace morpho
