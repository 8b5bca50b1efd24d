#include "formats/theme_package.h"

#include <cstdint>
#include <optional>
#include <set>

#include "formats/plain_file_name.h"
#include "platform/code_page.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "text/parsed_number.h"
#include "text/trim.h"

namespace morpho {

namespace {

// Takes the next line away from the text.
std::string_view TakeLine(std::string_view& rest) {
    const auto end = rest.find('\n');
    if (end == std::string_view::npos) RefusePackage("ends within its index");
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end + 1);
    return line;
}

template <typename Number>
std::optional<Number> NumberIn(std::string_view text) {
    return ParsedNumber<Number>(Trim(text, " \r"));
}

void AddMember(const CodePage& codePage, std::string_view line, std::set<std::string>& known,
               PackageIndex& index) {
    const auto comma = line.rfind(',');
    const std::string name = codePage.ToText(line.substr(0, comma));
    if (!IsPlainFileName(name))
        RefusePackage("names a member that is no plain file: \"" + name + "\"");
    if (!known.insert(Folded(name)).second) RefusePackage("names \"" + name + "\" twice");
    index.names.push_back(name);
    index.lengths.push_back(comma == std::string_view::npos ? std::string_view()
                                                            : line.substr(comma + 1));
}

}  // namespace

void RefusePackage(const std::string& reason) {
    throw RunTimeError(ErrorNumber::kInvalidFileFormat, "The theme package " + reason + ".");
}

PackageIndex ReadPackageIndex(const CodePage& codePage, std::string_view bytes) {
    PackageIndex index;
    index.header = TakeLine(bytes);
    index.countLine = TakeLine(bytes);
    const auto count = NumberIn<std::int64_t>(index.countLine);
    if (!count || *count < 0) RefusePackage("does not say how many members it has");
    if (*count > kMaxPackageMembers)
        RefusePackage("has more than " + std::to_string(kMaxPackageMembers) + " members");
    std::set<std::string> known;
    for (int i = 0; i < *count; ++i)
        AddMember(codePage, TakeLine(bytes), known, index);
    // A count below the truth would silently drop members.
    if (*count == 0 ? !bytes.empty() : !bytes.starts_with(kPackageMarker))
        RefusePackage("has another number of members than it says");
    index.contents = bytes;
    return index;
}

std::uint64_t MemberLength(const PackageIndex& index, std::size_t member) {
    const auto length = NumberIn<std::uint64_t>(index.lengths[member]);
    if (!length) RefusePackage("gives a wrong length for \"" + index.names[member] + "\"");
    return *length;
}

std::string FormatPackageIndex(const CodePage& codePage, std::string_view header,
                               std::string_view countLine, const std::vector<PackedFile>& members) {
    std::string index(header);
    index += '\n' + std::string(countLine) + '\n';
    for (const PackedFile& member : members)
        index += codePage.ToBytes(member.name) + ',' + std::to_string(member.length) + '\n';
    return index;
}

}  // namespace morpho
