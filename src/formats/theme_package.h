#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace morpho {

class CodePage;

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

// The package's file. The count line is written as it is, the lengths as they are now.
std::string FormatThemePackage(const CodePage& codePage, const ThemePackage& package);

// The index of a package: what it says of its members.
struct PackageIndex {
    std::string header;
    std::string countLine;
    std::vector<std::string> names;         // UTF-8
    std::vector<std::string_view> lengths;  // decimal texts, as they stand in the package
    std::string_view contents;              // what follows the index
};

// What stands before the bytes of each member.
inline constexpr std::string_view kPackageMarker = "<==MS-Theme==>";

// The index of the package in `bytes`, which must outlive it. An index that contradicts itself, or
// that names a member by anything but a plain file name or twice (also in another letter case),
// throws RunTimeError (kInvalidFileFormat). Lengths are not looked at, nor contents beyond the
// first marker.
PackageIndex ReadPackageIndex(const CodePage& codePage, std::string_view bytes);
// The length in bytes that the index gives the member; throws for what is no number.
std::uint64_t MemberLength(const PackageIndex& index, std::size_t member);

// Throws the error for a package that cannot be trusted: "The theme package <reason>".
[[noreturn]] void RefusePackage(const std::string& reason);

}  // namespace morpho
