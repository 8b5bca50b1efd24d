#pragma once

#include <string>
#include <string_view>

#include "formats/registry_data.h"

namespace morpho {

// The text that regedit exports and imports ("Windows Registry Editor Version 5.00").

// Carries out the lines of such a text on `data`: UTF-8, or UTF-16 as regedit writes it. A line
// that is not understood is passed over.
void ReadRegText(std::string_view bytes, RegistryData& data);

// All the keys and values as such a text, UTF-8. A text that is not plain ASCII is written in
// bytes, as regedit would misread it.
std::string WriteRegText(const RegistryData& data);

}  // namespace morpho
