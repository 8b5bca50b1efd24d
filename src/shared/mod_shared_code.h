#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace morpho {

class FileSystem;
class Shell;

// Values of GetImageFileType.
inline constexpr int kNoImageFile = 0;
inline constexpr int kGifFile = 1;
inline constexpr int kJpegFile = 2;
inline constexpr int kBmpFile = 3;
inline constexpr int kPngFile = 4;

// The image type by the extension of a file name, path or address.
int GetImageFileType(std::string_view name);
bool IsJpegFile(std::string_view name);

// Whether a file or theme can have this name. Ignoring spaces around it, it must not be empty,
// start with a dot or contain any of \/#:*?<>|".
bool IsValidFileName(std::string_view name);

// Base folder and names joined by "\"; "/" counts as "\", and "\.." removes the folder before it
// (also where a name only begins with two dots). No "\" at the end unless the last name has one.
// The first form also changes `names` to the form in which they were joined.
std::string JoinPath(std::string_view base, std::vector<std::string>& names);
std::string JoinPath(std::string_view base, std::initializer_list<std::string_view> names);

// Cuts the text before its first NUL, after trimming spaces from both ends with `trimFirst`.
void TrimAtNul(std::string& text, bool trimFirst);

// Puts values[0] in place of every "%1", then values[1] in place of every "%2", and so on.
std::string FormatText(std::string_view format, const std::vector<std::string>& values);

// Opens a document or an address with its program, in a normal window. Above 32: success.
int ShellOpen(Shell& shell, std::string_view file, std::string_view parameters);

// The part after the last "\" or "/".
std::string FileNameOf(std::string_view path);
// The path with one "\" at its end.
std::string WithSeparator(std::string_view folder);

bool FolderExists(const FileSystem& files, std::string_view path);
// Whether a normal file (no folder, hidden or system entry) matches the path. A path that ends in
// "\" matches any file of the folder; the last name may contain the wild cards * and ?. False when
// the folder cannot be read.
bool AnyFileMatches(const FileSystem& files, std::string_view path);

}  // namespace morpho
