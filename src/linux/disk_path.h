#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace morpho {

// Paths of the disk ("/home/ann/web", bytes) and the Windows paths by which the program calls them
// ("Z:\home\ann\web", UTF-8). What a Windows path cannot hold, a "\" in a name or a byte that is
// not UTF-8, is written as the private character U+F700 plus the byte; it comes back unchanged.

// The Windows path of an absolute path of the disk.
std::string ToWindowsPath(std::string_view diskPath);

// The path of the disk as spelled: "." and ".." are resolved, doubled and trailing "\" dropped, and
// "/" is taken like "\". Nothing is looked up. Nothing for a path that is not below "Z:\".
std::optional<std::string> ToDiskPath(std::string_view windowsPath);

// The same with each name that exists spelled as it stands on the disk: an exact match first, then
// one that differs only in letter case (the first in byte order). From the first name that does not
// exist on, it is as spelled.
std::optional<std::string> FindOnDisk(std::string_view windowsPath);

// One name of a path, in both directions.
std::string NameFromDisk(std::string_view diskName);
std::string NameToDisk(std::string_view name);

// A name of the disk that means an entry directly in a folder: not empty, "." or "..", no "/".
bool IsEntryName(std::string_view diskName);

// "/" for what stands in the root.
std::string ParentFolder(std::string_view diskPath);
std::string_view LastName(std::string_view diskPath);
std::string JoinDiskPath(std::string_view folder, std::string_view name);

}  // namespace morpho
