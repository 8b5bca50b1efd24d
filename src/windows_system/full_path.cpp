#include "windows_system/full_path.h"

#include <algorithm>

#include "windows_system/file_handle.h"
#include "windows_system/wide.h"
#include "windows_system/windows_error.h"

namespace morpho {

namespace {

constexpr std::wstring_view kPrefix = L"\\\\?\\";
constexpr std::wstring_view kSharePrefix = L"\\\\?\\UNC\\";

// Without "." and "..", doubled and trailing "\\". The first `root` characters stay.
std::wstring Cleaned(std::wstring_view path, std::size_t root) {
    std::wstring clean(path.substr(0, root));
    for (std::size_t start = root; start < path.size();) {
        const std::size_t end = std::min(path.find(L'\\', start), path.size());
        const std::wstring_view name = path.substr(start, end - start);
        start = end + 1;
        if (name == L"..") {
            if (clean.size() > root) clean.resize(clean.rfind(L'\\'));
        } else if (!name.empty() && name != L".") {
            clean.append(1, L'\\').append(name);
        }
    }
    return clean;
}

// How many characters name the drive or the share; 0 for a path that is not absolute.
std::size_t RootLength(std::wstring_view path) {
    if (path.size() >= 2 && path[1] == L':' && (path.size() == 2 || path[2] == L'\\')) {
        const wchar_t drive = path[0] | 0x20;
        return drive >= L'a' && drive <= L'z' ? 2 : 0;
    }
    if (!path.starts_with(L"\\\\") || path.starts_with(L"\\\\?") || path.starts_with(L"\\\\."))
        return 0;
    const std::size_t server = path.find(L'\\', 2);
    return server == path.npos ? 0 : std::min(path.find(L'\\', server + 1), path.size());
}

std::wstring WithBackslashes(std::string_view path) {
    std::wstring wide = Wide(path);
    std::replace(wide.begin(), wide.end(), L'/', L'\\');
    return wide;
}

}  // namespace

std::wstring FullPath(std::string_view path) {
    const std::wstring wide = WithBackslashes(path);
    const std::size_t root = RootLength(wide);
    if (root == 0 || wide.find(L'\0') != wide.npos)
        throw SystemError(ErrorNumber::kPathNotFound, path, "cannot be reached",
                          "it is no absolute path");
    const std::wstring clean = Cleaned(wide, root);
    if (root > 2) return std::wstring(kSharePrefix) + clean.substr(2);
    return std::wstring(kPrefix) + clean + (clean.size() == root ? L"\\" : L"");
}

std::wstring FullPathOf(const std::wstring& given) {
    const std::wstring path = Wide(ShownPath(given));
    std::wstring full(::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    const DWORD length = full.empty()
                             ? 0
                             : ::GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()),
                                                  full.data(), nullptr);
    // Another thread may have changed the current folder meanwhile: then it does not fit.
    full.resize(length < full.size() ? length : 0);
    return FullPath(Narrow(full));
}

std::wstring PathWithoutLinks(const std::wstring& fullPath, std::error_code& error) {
    const FileHandle file(
        ::CreateFileW(fullPath.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    error.clear();
    if (!file.IsOpen()) {
        error.assign(static_cast<int>(::GetLastError()), std::system_category());
        return {};
    }
    std::wstring real(::GetFinalPathNameByHandleW(file.Get(), nullptr, 0, 0), L'\0');
    real.resize(real.empty() ? 0
                             : ::GetFinalPathNameByHandleW(file.Get(), real.data(),
                                                           static_cast<DWORD>(real.size()), 0));
    // Not every file server can tell.
    return real.empty() ? fullPath : real;
}

bool IsAbsolutePath(std::string_view path) {
    return RootLength(WithBackslashes(path)) != 0;
}

std::string ShownPath(std::wstring_view fullPath) {
    if (fullPath.starts_with(kSharePrefix))
        return "\\\\" + Narrow(fullPath.substr(kSharePrefix.size()));
    if (fullPath.starts_with(kPrefix)) fullPath.remove_prefix(kPrefix.size());
    return Narrow(fullPath);
}

std::wstring JoinPath(std::wstring_view folder, std::wstring_view name) {
    std::wstring path(folder);
    if (!path.ends_with(L'\\')) path += L'\\';
    return path.append(name);
}

std::wstring FolderOf(std::wstring_view fullPath) {
    const std::size_t slash = fullPath.rfind(L'\\');
    // The root of a drive keeps its "\".
    const bool isRoot = slash > 0 && fullPath[slash - 1] == L':';
    return std::wstring(fullPath.substr(0, slash + (isRoot ? 1 : 0)));
}

std::wstring_view NameOf(std::wstring_view fullPath) {
    return fullPath.substr(fullPath.rfind(L'\\') + 1);
}

bool IsPlainName(std::wstring_view name) {
    return !name.empty() && name != L"." && name != L".." &&
           name.find_first_of(L"\\/:*?\"<>|") == name.npos &&
           std::none_of(name.begin(), name.end(), [](wchar_t c) { return c < L' '; });
}

}  // namespace morpho
