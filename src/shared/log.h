#pragma once

#include <string>
#include <string_view>

#include "shared/component.h"

namespace morpho {

// Values of Component::logMode. Any other value is off, too.
inline constexpr int kLogOff = 0;
inline constexpr int kLogToFile = 1;
inline constexpr int kLogToDebugger = 2;

inline bool IsLogOn(int logMode) {
    return logMode == kLogToFile || logMode == kLogToDebugger;
}

// Writes one line to the diagnostic log, "hh:mm:ss", logIndent + 1 spaces and the text, as
// Component::logMode says: to the file of this day, to the debugger output, or nowhere. The file is
// opened and closed for each line, so that it is complete even if the host dies. Throws
// RunTimeError when the file or its folder cannot be written; when no folder is found, the debugger
// output says so.
void WriteLog(const Program& program, std::string_view text);

// The folder of the log files with a trailing "\", below the user's application data; created when
// missing. Empty when it cannot be found. Throws RunTimeError when it cannot be created.
std::string GetLogFolder(const Program& program);

// Starts an editor's log: sets the file prefix ("TM", "IM") and reads the mode from the
// application's "Logging" setting (application "Theme Morpho" or "Image Morpho").
void StartLog(const Program& program, std::string_view prefix, std::string_view application);

}  // namespace morpho
