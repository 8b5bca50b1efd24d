#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morpho {

class CodePage;
struct Platform;

// The packed form of a theme (".elm"), one file beside its description (".inf"): a header line that
// nothing here interprets, a line with the number of members, a line "name,length in bytes" for
// each member, and then for each member the marker and its bytes, with nothing between them. A line
// ends with one line feed; names are in the system's code page.
struct ThemePackage {
    struct Member {
        std::string name;  // a plain file name, UTF-8
        std::string bytes;
    };
    std::string header;     // the first line as it stands in the file
    std::string countLine;  // the second one, which is carried over too
    std::vector<Member> members;
};

// Reads a package as a whole. A package that contradicts itself, or that names a member by anything
// but a plain file name or twice (also in another letter case), throws RunTimeError
// (kInvalidFileFormat).
ThemePackage ReadThemePackage(const CodePage& codePage, std::string_view bytes);

// The package's file. The count line is written as it is, the lengths as they are now.
std::string FormatThemePackage(const CodePage& codePage, const ThemePackage& package);

// Writes the package `destination` with the members that the package `source` lists, in their
// present form in `folder`. Source and destination may be the same file. A member that is the
// description of the source's theme ("a.inf" in "a.elm") becomes that of the destination's. Throws
// RunTimeError, and leaves the destination as it was, when the source's list cannot be trusted or a
// file is missing.
void RebuildThemePackage(const Platform& platform, const std::string& source,
                         const std::string& destination, const std::string& folder);

}  // namespace morpho
