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
struct PackedFile {
    std::string name;  // a plain file name, UTF-8
    std::uint64_t length = 0;
};

// What stands in a package before the first marker: the two lines as given, and a line for each
// member.
std::string FormatPackageIndex(const CodePage& codePage, std::string_view header,
                               std::string_view countLine, const std::vector<PackedFile>& members);

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
// FrontPage reads the number of members as a 16-bit integer.
inline constexpr int kMaxPackageMembers = 32767;
// A line of an index holds a name of at most 255 bytes and a length; two more lines stand above.
inline constexpr std::size_t kMaxPackageIndexLine = 300;
inline constexpr std::size_t kMaxPackageIndexBytes =
    (kMaxPackageMembers + 2) * kMaxPackageIndexLine;

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
