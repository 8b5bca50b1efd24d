#include "shared/log.h"

#include <cstdio>

#include "platform/clock.h"
#include "platform/code_page.h"
#include "platform/environment.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/shell.h"
#include "shared/mod_shared_code.h"
#include "shared/reg_key.h"
#include "shared/settings.h"

namespace morpho {

namespace {

std::string LogLine(const Component& component, const LocalTime& now, std::string_view text) {
    char time[40];
    std::snprintf(time, sizeof time, "%02d:%02d:%02d", now.hour, now.minute, now.second);
    const int blanks = component.logIndent + 1;
    return time + std::string(blanks > 0 ? static_cast<std::size_t>(blanks) : 0, ' ') +
           std::string(text);
}

std::string LogFile(const Component& component, const LocalTime& now) {
    char date[40];
    std::snprintf(date, sizeof date, "%04d%02d%02d", now.year, now.month, now.day);
    // The folder already ends in a separator; file calls accept the doubled one.
    return component.logFolder + '\\' + component.logPrefix + date + ".log";
}

// Adds a folder to the path and creates it where it is missing.
void Enter(FileSystem& files, std::string& path, const char* folder) {
    path += folder;
    if (!FolderExists(files, path)) files.CreateFolder(path);
}

}  // namespace

void WriteLog(const Program& program, std::string_view text) {
    const Platform& platform = program.platform;
    Component& component = program.component;
    if (!IsLogOn(component.logMode)) return;
    const LocalTime now = platform.clock.Now();
    const std::string line = LogLine(component, now, text);
    if (component.logMode == kLogToDebugger) {
        platform.shell.DebugOutput(line);
        return;
    }
    if (component.logFolder.empty()) component.logFolder = GetLogFolder(program);
    if (component.logFolder.empty()) {
        platform.shell.DebugOutput(platform.environment.Version().title +
                                   ": Unable to determine log path");
        return;
    }
    platform.files.AppendFile(LogFile(component, now), platform.codePage.ToBytes(line + "\r\n"));
}

std::string GetLogFolder(const Program& program) {
    const Platform& platform = program.platform;
    std::string path;
    if (!GetRegString(platform, kCurrentUser, kShellFolders, "AppData", path) || path.empty())
        return {};
    const auto entry = platform.files.Find(path);
    if (!entry || (entry->attributes & kSystemAttribute) != 0) return {};
    path = WithSeparator(path);
    Enter(platform.files, path, "Norvale Software");
    Enter(platform.files, path, "\\Webtrove");
    return path + '\\';
}

void StartLog(const Program& program, std::string_view prefix, std::string_view application) {
    program.component.logPrefix = prefix;
    program.component.logMode =
        GetSettingNumber(program.platform, application, kWindowSection, "Logging", 0);
}

}  // namespace morpho
