#include "program/dry_run.h"

#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

#include "linux/disk_folder.h"
#include "linux/file_error.h"
#include "text/ignoring_case.h"
#include "web_host/page_walk.h"

namespace morpho {

namespace fs = std::filesystem;

namespace {

// Where the user's own themes are, below the program's data folder.
constexpr const char* kUserThemes = "AppData/Microsoft/Themes";

std::string ReadAll(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

// The web's folder without links; one that cannot be opened is refused as by the save itself.
fs::path RealFolder(const fs::path& web) {
    DiskFolder::Open(fs::absolute(web).lexically_normal().string(), true);
    return fs::canonical(web);
}

// What a save reads and changes in a web: themes, the web's own settings, pages, and what a save
// that died left beside those.
bool IsForSave(const fs::path& name) {
    const std::string top = name.begin()->string();
    const std::string file = name.filename().string();
    return EqualIgnoringCase(top, "_themes") || EqualIgnoringCase(top, "_vti_pvt") ||
           IsPageName(file) || IsTemporaryName(file);
}

// Folders, each before its contents, and regular files: all that may be read. They are listed
// before anything is copied, for the copy may lie below the same folder.
std::vector<fs::directory_entry> EntriesBelow(const fs::path& folder) {
    std::vector<fs::directory_entry> entries;
    for (const auto& entry :
         fs::recursive_directory_iterator(folder, fs::directory_options::skip_permission_denied)) {
        std::error_code ignored;
        const fs::file_type type = entry.symlink_status(ignored).type();
        if (type == fs::file_type::directory || type == fs::file_type::regular)
            entries.push_back(entry);
    }
    return entries;
}

}  // namespace

DryRun::DryRun(const fs::path& web, const UserFolders& folders)
    : realWeb_(RealFolder(web)), realFolders_(folders), stage_(folders.cache) {
    try {
        webFiles_ = CopyFiles(realWeb_, Web(), IsForSave);
        fs::create_directories(UserThemes());
        if (fs::is_directory(RealUserThemes()))
            themeFiles_ =
                CopyFiles(RealUserThemes(), UserThemes(), [](const auto&) { return true; });
    } catch (const fs::filesystem_error& error) {
        throw FileError(error.code().value(), realWeb_.string(),
                        "could not be copied for the dry run");
    }
}

fs::path DryRun::Web() const {
    return fs::path(stage_.Temporary()) / "web" / realWeb_.filename();
}

fs::path DryRun::UserThemes() const {
    return fs::path(Folders().data) / kUserThemes;
}

fs::path DryRun::RealUserThemes() const {
    return fs::path(realFolders_.data) / kUserThemes;
}

UserFolders DryRun::Folders() const {
    UserFolders folders = realFolders_;
    folders.data = stage_.Temporary() + "/data";
    return folders;
}

std::string DryRun::WouldWrite() const {
    return Changes(realWeb_, Web(), webFiles_) +
           Changes(RealUserThemes(), UserThemes(), themeFiles_);
}

std::string DryRun::WithRealPlaces(std::string text) const {
    text = Replaced(std::move(text), Web().string(), realWeb_.string());
    return Replaced(std::move(text), Folders().data, realFolders_.data);
}

DryRun::Names DryRun::CopyFiles(const fs::path& source, const fs::path& destination,
                                const IsWanted& isWanted) {
    Names names;
    fs::create_directories(destination);
    for (const fs::directory_entry& entry : EntriesBelow(source)) {
        const fs::path name = entry.path().lexically_relative(source);
        if (entry.is_directory()) {
            fs::create_directories(destination / name);
        } else if (isWanted(name)) {
            std::error_code error;
            fs::copy_file(entry.path(), destination / name, error);
            if (error == std::errc::permission_denied) continue;
            if (error) throw FileError(error.value(), entry.path().string(), "could not be copied");
            names.insert(name);
        }
    }
    return names;
}

std::string DryRun::Changes(const fs::path& realFolder, const fs::path& copy, const Names& copied) {
    std::string lines;
    Names now;
    for (const fs::directory_entry& entry : EntriesBelow(copy)) {
        if (!entry.is_directory()) now.insert(entry.path().lexically_relative(copy));
    }
    for (const fs::path& name : now) {
        if (!copied.contains(name)) {
            lines += "would create " + (realFolder / name).string() + "\n";
        } else if (ReadAll(copy / name) != ReadAll(realFolder / name)) {
            lines += "would change " + (realFolder / name).string() + "\n";
        }
    }
    for (const fs::path& name : copied) {
        if (!now.contains(name)) lines += "would delete " + (realFolder / name).string() + "\n";
    }
    return lines;
}

}  // namespace morpho
