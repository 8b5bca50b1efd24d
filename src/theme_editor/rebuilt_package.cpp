#include "theme_editor/rebuilt_package.h"

#include "formats/theme_package.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "shared/mod_shared_code.h"
#include "text/ignoring_case.h"
#include "theme_editor/description_files.h"

namespace morpho {

namespace {

std::string StemOf(const std::string& path) {
    const std::string name = FileNameOf(path);
    return name.substr(0, name.rfind('.'));
}

}  // namespace

void RebuildThemePackage(const Platform& platform, const std::string& source,
                         const std::string& destination, const std::string& folder) {
    FileSystem& files = platform.files;
    const std::string old = files.ReadFile(source);
    const PackageIndex index = ReadPackageIndex(platform.codePage, old);
    ThemePackage package{index.header, index.countLine, {}};
    for (std::string name : index.names) {
        for (const std::string_view extension : kDescriptionExtensions) {
            if (EqualIgnoringCase(name, StemOf(source) + std::string(extension)))
                name = StemOf(destination) + std::string(extension);
        }
        package.members.push_back({name, files.ReadFile(WithSeparator(folder) + name)});
    }
    // As a whole, so that a shorter package keeps no tail of the earlier one.
    files.WriteFile(destination, FormatThemePackage(platform.codePage, package));
}

}  // namespace morpho
