#include "web_host/installed_themes.h"

#include <algorithm>
#include <filesystem>

#include "formats/windows_1252_code_page.h"
#include "linux/disk_folder.h"
#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "linux/whole_file.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

constexpr std::string_view kHeader = "Morpho theme package 1";
constexpr std::size_t kMaxMembers = 32767;

// Whether a package can hold a file of this name: whether it comes back from one.
bool IsPackable(const std::string& name) {
    const Windows1252CodePage codePage;
    try {
        const std::string bytes = FormatThemePackage(codePage, {"", "1", {{name, ""}}});
        return ReadThemePackage(codePage, bytes).members.front().name == name;
    } catch (const RunTimeError&) {
        return false;
    }
}

std::string Packed(const std::vector<InstalledThemes::File>& files,
                   const InstalledThemes::File& description) {
    ThemePackage package;
    package.header = kHeader;
    for (const InstalledThemes::File& file : files) {
        if (&file != &description && IsPackable(file.name) && package.members.size() < kMaxMembers)
            package.members.push_back(file);
    }
    package.countLine = std::to_string(package.members.size());
    return FormatThemePackage(Windows1252CodePage(), package);
}

void WriteWhereChanged(const DiskFolder& folder, const std::string& name,
                       const std::string& bytes) {
    for (const DiskEntry& entry : folder.Entries()) {
        if (entry.name != name || entry.kind != DiskKind::kFile) continue;
        if (ReadWhole(folder.OpenFile(name), folder.PathOf(name)) == bytes) return;
    }
    WholeFile file(folder.PathOf(name), Durability::kUnflushed);
    file.Write(bytes);
    file.Commit();
}

}  // namespace

bool InstalledThemes::Install(const std::string& diskName, const std::vector<File>& files) {
    const std::string inf = NameFromDisk(diskName) + ".inf";
    const auto description = std::find_if(files.begin(), files.end(), [&](const File& file) {
        return EqualIgnoringCase(file.name, inf);
    });
    if (description == files.end()) return false;
    Reserve(diskName);
    const DiskFolder folder = DiskFolder::Open(JoinDiskPath(folder_, diskName), false);
    WriteWhereChanged(folder, diskName + ".elm", Packed(files, *description));
    WriteWhereChanged(folder, diskName + ".inf", description->bytes);
    return true;
}

void InstalledThemes::Reserve(const std::string& diskName) {
    names_.insert(diskName);
    const std::string path = JoinDiskPath(folder_, diskName);
    std::error_code error;
    std::filesystem::create_directories(path, error);
    if (error) throw FileError(error.value(), path, "could not be created");
}

int InstalledThemes::RemoveOthers() {
    std::error_code error;
    if (!std::filesystem::is_directory(folder_, error)) return 0;
    int removed = 0;
    for (const DiskEntry& entry : DiskFolder::Open(folder_, false).Entries()) {
        if (names_.contains(entry.name)) continue;
        const std::string path = JoinDiskPath(folder_, entry.name);
        std::filesystem::remove_all(path, error);
        if (error) throw FileError(error.value(), path, "could not be deleted");
        ++removed;
    }
    return removed;
}

}  // namespace morpho
