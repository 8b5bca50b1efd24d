// A theme's package names no member outside of the theme's folder, and none twice.

#include <set>

#include "formats/theme_package.h"
#include "formats/windows_1252_code_page.h"
#include "fuzz/fuzz.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const morpho::PackageIndex index =
            morpho::ReadPackageIndex(morpho::Windows1252CodePage(), Text(data, size));
        std::set<std::string> names;
        for (std::size_t member = 0; member < index.names.size(); ++member) {
            const std::string& name = index.names[member];
            Require(!name.empty() && name.find_first_of("/\\:\n\r") == name.npos && name != ".." &&
                        name != ".",
                    "A member is named by a path.");
            Require(names.insert(morpho::Folded(name)).second, "A member is named twice.");
        }
        for (std::size_t member = 0; member < index.names.size(); ++member)
            morpho::MemberLength(index, member);
    } catch (const morpho::RunTimeError&) {
    }
    return 0;
}
