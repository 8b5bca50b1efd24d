#pragma once

#include <string>
#include <string_view>

#include "shared/component.h"

namespace morpho {

struct Platform;

// Where FrontPage and the user keep their files, and what the log says about the surroundings.
// These functions only read. A missing value is an empty text, not an exception. A version is what
// the host's Application reports, such as "6.0".

enum class FrontPageFolder {
    kProgram = 0,
    kBots = 1,
    kThemes = 2,
    kWebTemplates = 3,
    kPageTemplates = 4
};

// The folder of this kind, without a trailing "\" (the program folder has one): the one `shared` by
// all users or the user's own. `language` is a Windows language number, such as "1033". Empty when
// it cannot be found, for a release other than 4, 5 and 6, and whenever FrontPage is not
// registered.
std::string GetFrontPageFolder(const Platform& platform, std::string_view version,
                               FrontPageFolder kind, std::string_view language, bool shared);

// The folder of FrontPage's program with a trailing "\".
std::string GetFrontPageProgramFolder(const Platform& platform, std::string_view version);

// FrontPage's folder of downloaded files, with or without a trailing "\".
std::string GetCachePath(const Platform& platform, std::string_view version);

// The temporary folder with a trailing "\".
std::string GetTempPath(const Platform& platform);

// One line about the operating system; empty for one that is not Windows.
std::string GetOSInfo(const Platform& platform);

// One line about the host and its languages. Throws kObjectNotSet before the host is known.
std::string GetFrontPageInfo(const Program& program);

// This component's version: "1.04", or with `full` revision and comments too ("1.04.17 ").
std::string GetVersionText(const Platform& platform, bool full);

// Identifiers of the host's automation objects: the whole version text after the class name.
std::string ExplorerProgId(std::string_view version);
std::string EditorProgId(std::string_view version);

}  // namespace morpho
