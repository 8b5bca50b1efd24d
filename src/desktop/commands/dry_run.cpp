#include "desktop/commands/dry_run.h"

#include <fstream>
#include <iterator>

namespace morpho {

namespace fs = std::filesystem;

namespace {

// Where the user's own themes are, below the program's data folder.
constexpr const char* kUserThemes = "AppData/Microsoft/Themes";

std::string ReadAll(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void CopyTree(const fs::path& source, const fs::path& destination) {
    fs::create_directories(destination);
    fs::copy(source, destination, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

}  // namespace

DryRun::DryRun(const fs::path& web, const UserFolders& folders)
    : realWeb_(fs::absolute(web).lexically_normal()), realFolders_(folders), stage_(folders.cache) {
    CopyTree(realWeb_, Web());
    const fs::path realThemes = fs::path(realFolders_.data) / kUserThemes;
    fs::create_directories(UserThemes());
    if (fs::is_directory(realThemes)) CopyTree(realThemes, UserThemes());
    webBefore_ = ReadTree(Web());
    themesBefore_ = ReadTree(UserThemes());
}

fs::path DryRun::Web() const {
    return fs::path(stage_.Temporary()) / "web" / realWeb_.filename();
}

fs::path DryRun::UserThemes() const {
    return fs::path(Folders().data) / kUserThemes;
}

UserFolders DryRun::Folders() const {
    UserFolders folders = realFolders_;
    folders.data = stage_.Temporary() + "/data";
    return folders;
}

std::string DryRun::WouldWrite() const {
    return Changes(webBefore_, ReadTree(Web()), realWeb_) +
           Changes(themesBefore_, ReadTree(UserThemes()),
                   fs::path(realFolders_.data) / kUserThemes);
}

DryRun::Tree DryRun::ReadTree(const fs::path& folder) {
    Tree tree;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && !entry.is_symlink()) {
            tree[entry.path().lexically_relative(folder).string()] = ReadAll(entry.path());
        }
    }
    return tree;
}

std::string DryRun::Changes(const Tree& before, const Tree& after, const fs::path& realFolder) {
    std::string lines;
    for (const auto& [name, bytes] : after) {
        const auto earlier = before.find(name);
        if (earlier == before.end()) {
            lines += "would create " + (realFolder / name).string() + "\n";
        } else if (earlier->second != bytes) {
            lines += "would change " + (realFolder / name).string() + "\n";
        }
    }
    for (const auto& [name, bytes] : before) {
        if (!after.contains(name)) lines += "would delete " + (realFolder / name).string() + "\n";
    }
    return lines;
}

}  // namespace morpho
