#include "theme_editor/rebuilt_package.h"

#include "formats/theme_package.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "shared/mod_shared_code.h"
#include "text/ignoring_case.h"
#include "theme_editor/description_files.h"

namespace morpho {

namespace {

std::string StemOf(const std::string& path) {
    const std::string name = FileNameOf(path);
    return name.substr(0, name.rfind('.'));
}

// The members that the package lists, under the names that they have in the destination's theme and
// with the lengths of the files in `folder`.
std::vector<PackedFile> PresentMembers(const FileSystem& files, const PackageIndex& index,
                                       const std::string& source, const std::string& destination,
                                       const std::string& folder) {
    std::vector<PackedFile> members;
    for (std::string name : index.names) {
        for (const std::string_view extension : kDescriptionExtensions) {
            if (EqualIgnoringCase(name, StemOf(source) + std::string(extension)))
                name = StemOf(destination) + std::string(extension);
        }
        const auto file = files.Find(folder + name);
        if (!file || file->IsFolder())
            throw RunTimeError(ErrorNumber::kFileNotFound,
                               "The theme has no file \"" + name + "\", which its package lists.");
        members.push_back({name, file->size});
    }
    return members;
}

std::string MemberBytes(const FileSystem& files, const std::string& folder,
                        const PackedFile& member) {
    std::string bytes = files.ReadFile(folder + member.name);
    // The index in front of it has been written by now.
    if (bytes.size() != member.length)
        throw RunTimeError(ErrorNumber::kPathFileAccess,
                           "Another program is writing \"" + member.name + "\".");
    return bytes;
}

}  // namespace

void RebuildThemePackage(const Platform& platform, const std::string& source,
                         const std::string& destination, const std::string& folder) {
    FileSystem& files = platform.files;
    const std::string start = files.ReadPart(source, 0, kMaxPackageIndexBytes);
    const PackageIndex index = ReadPackageIndex(platform.codePage, start);
    const std::string from = WithSeparator(folder);
    const auto members = PresentMembers(files, index, source, destination, from);
    // As a whole, so that a shorter package keeps no tail of the earlier one.
    files.WriteFile(destination, [&](const ByteSink& write) {
        write(FormatPackageIndex(platform.codePage, index.header, index.countLine, members));
        for (const PackedFile& member : members) {
            write(kPackageMarker);
            write(MemberBytes(files, from, member));
        }
    });
}

}  // namespace morpho
