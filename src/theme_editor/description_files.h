#pragma once

#include <array>
#include <string>
#include <string_view>

namespace morpho {

struct Platform;

// A theme is described by "<name>.inf". Some themes have "<name>.utf8" too, a copy of it in UTF-8.
inline constexpr std::array<std::string_view, 2> kDescriptionExtensions = {".inf", ".utf8"};

// Whether the description says that the theme must not be overwritten.
bool IsReadOnlyTheme(const Platform& platform, const std::string& inf);

// Makes the description in the folder (with a trailing "\") that of a new theme.
void RenameDescription(const Platform& platform, const std::string& folder, const std::string& name,
                       const std::string& newName, const std::string& newTitle);

// Reverts RenameDescription in `folder`, a copy of `originals`, whatever the new name was. Both
// have a trailing "\".
void RestoreDescription(const Platform& platform, const std::string& folder,
                        const std::string& originals, const std::string& name);

// Writes a description with this title, not read-only, from the source's, and creates the theme's
// folder when it is missing.
void WriteThemeDescription(const Platform& platform, const std::string& sourceInf,
                           const std::string& destinationInf, const std::string& destinationFolder,
                           const std::string& title);

}  // namespace morpho
