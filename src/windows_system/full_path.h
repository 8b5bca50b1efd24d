#pragma once

#include <string>
#include <string_view>

namespace morpho {

// Windows paths as the file calls take them: wide, absolute, without "." and "..", doubled or
// trailing "\", and with the prefix "\\?\", so that they may be long and no name means a device.
// A path that is not absolute throws RunTimeError (kPathNotFound).
std::wstring FullPath(std::string_view path);

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
