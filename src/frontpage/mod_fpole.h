#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "shared/component.h"

namespace morpho {

// Calls that only the host's explorer object offers, by name. Each wrapper creates the object from
// Component::explorerProgId, calls one method and releases the object. None of them throws or
// reports an error: after a failure the result is 0 or false.

// Sets the identifiers of the host's explorer and editor for its version text, such as "6.0".
void SetFrontPageProgIDs(Component& component, std::string_view version);

// Brings the host's window to the top.
void FPBringToTop(const Program& program);

// Creates a folder of the open web; `folderUrl` is relative to the web, such as "_themes/blends".
std::int32_t FPCreateFolder(const Program& program, const std::string& folderUrl);

// Fetches a document of the open web into a file.
std::int32_t FPGetDocToFile(const Program& program, const std::string& documentUrl,
                            const std::string& filePath);

bool FPIsFolderInWeb(const Program& program, const std::string& folderUrl);

// Makes the host fetch a theme again. Saving a theme passes its name, the web's address and true
// twice.
std::int32_t FPMakeThemeFresh(const Program& program, const std::string& firstText,
                              const std::string& secondText, bool firstFlag, bool secondFlag);

}  // namespace morpho
