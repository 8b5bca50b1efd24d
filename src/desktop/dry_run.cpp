#include "desktop/dry_run.h"

#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

#include "desktop/folder_entries.h"
#include "desktop/path_text.h"
#include "text/ignoring_case.h"
#include "web_host/page_walk.h"

namespace morpho {

namespace fs = std::filesystem;

namespace {

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
fs::path RealFolder(DesktopSystem& system, const fs::path& web) {
    system.GetDisk().Open(system.PathInside(system.AbsolutePath(web)));
    std::error_code error;
    const fs::path folder = system.RealPath(web, error);
    if (error) throw system.FileError(error, web, "could not be opened");
    return folder;
}

// What a save reads and changes in a web: themes, the web's own settings, pages, and what a save
// that died left beside those.
bool IsForSave(const fs::path& name) {
    const std::string top = TextOf(*name.begin());
    const std::string file = TextOf(name.filename());
    return EqualIgnoringCase(top, "_themes") || EqualIgnoringCase(top, "_vti_pvt") ||
           IsPageName(file) || IsTemporaryName(file);
}

}  // namespace

DryRun::DryRun(DesktopSystem& system, const fs::path& web, const ProgramFolders& folders)
    : system_(system),
      realWeb_(RealFolder(system, web)),
      realFolders_(folders),
      stage_(system.MakeWorkFolder(folders.cache)) {
    try {
        webFiles_ = CopyFiles(realWeb_, Web(), IsForSave);
        fs::create_directories(UserThemes());
        if (fs::is_directory(RealUserThemes()))
            themeFiles_ =
                CopyFiles(RealUserThemes(), UserThemes(), [](const auto&) { return true; });
    } catch (const fs::filesystem_error& error) {
        throw system.FileError(error.code(), realWeb_, "could not be copied for the dry run");
    }
}

fs::path DryRun::Web() const {
    return stage_->Temporary() / "web" / realWeb_.filename();
}

fs::path DryRun::UserThemes() const {
    return Folders().appData / "Microsoft" / "Themes";
}

fs::path DryRun::RealUserThemes() const {
    return realFolders_.appData / "Microsoft" / "Themes";
}

ProgramFolders DryRun::Folders() const {
    ProgramFolders folders = realFolders_;
    folders.data = stage_->Temporary() / "data";
    folders.appData = folders.data / "AppData";
    return folders;
}

std::string DryRun::WouldWrite() const {
    return Changes(realWeb_, Web(), webFiles_) +
           Changes(RealUserThemes(), UserThemes(), themeFiles_);
}

std::string DryRun::WithRealPlaces(std::string text) const {
    text = Replaced(std::move(text), TextOf(Web()), TextOf(realWeb_));
    text = Replaced(std::move(text), TextOf(Folders().appData), TextOf(realFolders_.appData));
    return Replaced(std::move(text), TextOf(Folders().data), TextOf(realFolders_.data));
}

DryRun::Names DryRun::CopyFiles(const fs::path& source, const fs::path& destination,
                                const IsWanted& isWanted) const {
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
            if (error) throw system_.FileError(error, entry.path(), "could not be copied");
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
            lines += "would create " + TextOf(realFolder / name) + "\n";
        } else if (ReadAll(copy / name) != ReadAll(realFolder / name)) {
            lines += "would change " + TextOf(realFolder / name) + "\n";
        }
    }
    for (const fs::path& name : copied) {
        if (!now.contains(name)) lines += "would delete " + TextOf(realFolder / name) + "\n";
    }
    return lines;
}

}  // namespace morpho
