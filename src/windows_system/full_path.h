#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace morpho {

// Windows paths as the file calls take them: wide, absolute, without "." and "..", doubled or
// trailing "\", and with the prefix "\\?\", so that they may be long and no name means a device.
// A path that is not absolute throws RunTimeError (kPathNotFound).
std::wstring FullPath(std::string_view path);

// A path has at most 32767 characters; a zero stands behind.
inline constexpr std::size_t kMaxPathCharacters = 32768;

// The full path of one that a person gave, which may begin at the current folder or drive, or with
// the prefix. A name of a device, such as "NUL", throws RunTimeError (kPathNotFound).
std::wstring FullPathOf(const std::wstring& given);

// The full path, without links, of a file or folder that exists. `error` says why there is none.
std::wstring PathWithoutLinks(const std::wstring& fullPath, std::error_code& error);

// Whether the path begins with a drive and "\", or with a share: "\\server\share".
bool IsAbsolutePath(std::string_view path);

// The same path without the prefix, UTF-8: for messages.
std::string ShownPath(std::wstring_view fullPath);

// `folder` is a full path.
std::wstring JoinPath(std::wstring_view folder, std::wstring_view name);
std::wstring FolderOf(std::wstring_view fullPath);
std::wstring_view NameOf(std::wstring_view fullPath);

// One name of a path: not empty, "." or "..", and without the characters that Windows does not
// allow in names.
bool IsPlainName(std::wstring_view name);

}  // namespace morpho
