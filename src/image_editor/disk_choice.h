#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/form.h"

namespace morpho {

// The name with "." and `extension` appended when it has no "."; unchanged without an extension.
std::string WithExtension(std::string name, std::string_view extension);

// Asks whether to replace the file of that name; true: yes.
bool MayReplace(Form& owner, std::string_view name, std::string_view title);

// Shows the common file dialog with the flags of its mode: a file that is opened must exist, and
// replacing one is asked for. Nothing when the person cancelled.
std::optional<std::string> ChooseDiskFile(Form& owner, Toolkit& toolkit, FileDialog request);

}  // namespace morpho
