// A theme's package is unpacked into a web: the files are its members, in the theme's folder, and
// nothing else changes but the page, which gets the theme.

#include <set>

#include "formats/theme_package.h"
#include "formats/windows_1252_code_page.h"
#include "fuzz/fuzz.h"
#include "fuzz/memory_disk.h"
#include "linux/disk_file_system.h"
#include "linux/disk_path.h"
#include "linux/linux_disk.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "web_host/disk_application.h"

namespace {

using namespace morpho;

const std::string kTheme = "web/_themes/night/";

// Also of a package that is refused as a whole.
std::set<std::string> MembersOf(std::string_view package) {
    std::set<std::string> names{"night.inf"};
    try {
        const PackageIndex index = ReadPackageIndex(Windows1252CodePage(), package);
        for (const std::string& name : index.names)
            Require(names.insert(Folded(name)).second || EqualIgnoringCase(name, "night.inf"),
                    "A member is named twice.");
    } catch (const RunTimeError&) {
    }
    return names;
}

// Whether the package was unpacked.
bool Unpack(const TemporaryFolder& folder) {
    LinuxDisk disk;
    DiskFileSystem files;
    DiskApplication host(disk, files, ToWindowsPath(folder / "cache"));
    host.Open(ToWindowsPath(folder / "web"), {},
              {ToWindowsPath(folder / "user"), ToWindowsPath(folder / "all"),
               ToWindowsPath(folder / "saves")});
    try {
        host.ActiveWeb()->ApplyTheme("night");
    } catch (const RunTimeError& error) {
        Require(*error.what() != '\0', "A refusal says nothing.");
        return false;
    }
    return true;
}

void CheckUnpacked(const Tree& before, const Tree& after, const std::set<std::string>& members) {
    std::size_t files = 0;
    for (const auto& [name, bytes] : after) {
        if (before.contains(name) || name == "web/_themes/" || name == kTheme) continue;
        Require(name.starts_with(kTheme), "A file is written outside of the theme's folder.");
        Require(members.contains(Folded(name.substr(kTheme.size()))), "A file is no member.");
        ++files;
    }
    Require(files == members.size(), "A member is missing.");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    UseMemoryDisk();
    const TemporaryFolder folder;
    folder.Write("web/index.htm", "<meta name='Microsoft Theme' content='none'>");
    folder.Write("beside/beside.inf", "[info]\ntitle=Beside\n");
    folder.Write("user/night/night.inf", "[info]\ntitle=Night\n");
    folder.Write("user/night/night.elm", std::string(Text(data, size)));
    for (const char* made : {"cache", "all", "saves"})
        std::filesystem::create_directory(folder.At(made));
    const std::set<std::string> members = MembersOf(Text(data, size));
    Tree before = folder.Below("");
    const bool isUnpacked = Unpack(folder);
    Tree after = folder.Below("");
    // What the host keeps for itself.
    for (Tree* tree : {&before, &after})
        std::erase_if(*tree, [](const auto& entry) {
            return entry.first.starts_with("cache/") || entry.first.starts_with("all/") ||
                   entry.first.starts_with("saves/");
        });
    if (!isUnpacked) {
        Require(after == before, "A package that is refused has changed something.");
        return 0;
    }
    CheckUnpacked(before, after, members);
    before.erase("web/index.htm");
    for (const auto& [name, bytes] : before)
        Require(after[name] == bytes, "A file that is no member has changed.");
    return 0;
}
