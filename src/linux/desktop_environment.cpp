#include "linux/desktop_environment.h"

#include <sys/utsname.h>

#include <cstdio>
#include <filesystem>

#include "linux/disk_path.h"
#include "linux/user_folders.h"
#include "shared/memory_registry.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

constexpr std::uint32_t kOtherPlatform = 3;

}  // namespace

DesktopEnvironment::DesktopEnvironment(ComponentVersion version, const std::string& temporaryFolder)
    : version_(std::move(version)), temporaryFolder_(ToWindowsPath(temporaryFolder)) {}

std::string DesktopEnvironment::Variable(std::string_view name) const {
    if (EqualIgnoringAsciiCase(name, "TMP") || EqualIgnoringAsciiCase(name, "TEMP"))
        return temporaryFolder_;
    return EnvironmentVariable(std::string(name).c_str());
}

OsVersion DesktopEnvironment::Os() const {
    OsVersion version;
    version.platformId = kOtherPlatform;
    utsname name = {};
    if (::uname(&name) != 0) return version;
    std::sscanf(name.release, "%u.%u.%u", &version.major, &version.minor, &version.build);
    version.description = std::string(name.sysname) + ' ' + name.release + ' ' + name.machine;
    return version;
}

std::string DesktopEnvironment::ModuleFolder() const {
    return ToWindowsPath(ProgramFolder());
}

std::string DesktopEnvironment::SystemMessage(std::int32_t code) const {
    switch (code) {
        case kRegSuccess:
            return "The operation completed successfully.";
        case kRegFileNotFound:
            return "The system cannot find the file specified.";
        case kRegAccessDenied:
            return "Access is denied.";
        case kRegInvalidHandle:
            return "The handle is invalid.";
        case kRegWriteFault:
            return "The system cannot write to the specified device.";
        default:
            return {};
    }
}

std::string ProgramFolder() {
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path().string();
}

}  // namespace morpho
