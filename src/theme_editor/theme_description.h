#pragma once

#include <string>

namespace morpho {

struct Platform;

// A theme's description is the profile file "<name>.inf" in its folder: section "info" with title
// and readonly, section "Titles" with a title for each language.

// Whether the description says that the theme must not be overwritten.
bool IsReadOnlyTheme(const Platform& platform, const std::string& inf);

// Gives the description this title, in all languages, and hands it to the disk.
void SetThemeTitle(const Platform& platform, const std::string& inf, const std::string& title);

// Writes a description with this title, not read-only, from the source's, and creates the theme's
// folder when it is missing.
void WriteThemeDescription(const Platform& platform, const std::string& sourceInf,
                           const std::string& destinationInf, const std::string& destinationFolder,
                           const std::string& title);

}  // namespace morpho
