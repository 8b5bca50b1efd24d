#include "windows_system/windows_environment.h"

#include "text/ignoring_case.h"
#include "windows_system/full_path.h"
#include "windows_system/wide.h"
#include "windows_system/windows_error.h"

namespace morpho {

WindowsEnvironment::WindowsEnvironment(ComponentVersion version, std::string temporaryFolder)
    : version_(std::move(version)), temporaryFolder_(std::move(temporaryFolder)) {}

std::string WindowsEnvironment::Variable(std::string_view name) const {
    const bool isTemporary =
        EqualIgnoringAsciiCase(name, "TMP") || EqualIgnoringAsciiCase(name, "TEMP");
    return isTemporary && !temporaryFolder_.empty() ? temporaryFolder_ : ProcessVariable(name);
}

OsVersion WindowsEnvironment::Os() const {
    // GetVersionEx tells a program that names no newer system in its manifest of Windows 8.
    using GetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
    OSVERSIONINFOW info = {};
    info.dwOSVersionInfoSize = sizeof info;
    const auto address = ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion");
    if (address) reinterpret_cast<GetVersion>(reinterpret_cast<void*>(address))(&info);
    OsVersion version;
    version.platformId = kWindowsNtPlatform;
    version.major = info.dwMajorVersion;
    version.minor = info.dwMinorVersion;
    version.build = info.dwBuildNumber;
    version.servicePack = Narrow(info.szCSDVersion);
    return version;
}

std::string WindowsEnvironment::ModuleFolder() const {
    return FolderOfModule();
}

std::string WindowsEnvironment::SystemMessage(std::int32_t code) const {
    return SystemText(static_cast<DWORD>(code));
}

std::string ProcessVariable(std::string_view name) {
    const std::wstring wide = Wide(name);
    std::wstring value(128, L'\0');
    // A value that does not fit needs one place more for its end.
    while (const DWORD length = ::GetEnvironmentVariableW(wide.c_str(), value.data(),
                                                          static_cast<DWORD>(value.size()))) {
        const bool fits = length < value.size();
        value.resize(length);
        if (fits) return Narrow(value);
    }
    return {};
}

std::string PathOfModule() {
    HMODULE module = nullptr;
    ::GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCWSTR>(&PathOfModule), &module);
    std::wstring path(kMaxPathCharacters, L'\0');
    path.resize(::GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size())));
    return ShownPath(path);
}

std::string FolderOfModule() {
    return ShownPath(FolderOf(Wide(PathOfModule())));
}

}  // namespace morpho
