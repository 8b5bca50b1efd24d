#include "desktop/export_folder.h"

#include <numeric>
#include <set>
#include <string>
#include <vector>

#include "desktop/folder_entries.h"
#include "desktop/path_text.h"
#include "desktop/request.h"

namespace morpho {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Refuse(const std::string& sentence) {
    throw Refusal(sentence);
}

[[noreturn]] void Fail(std::errc reason) {
    throw fs::filesystem_error("", std::make_error_code(reason));
}

std::vector<fs::path> EntriesOf(const fs::path& folder) {
    return {fs::directory_iterator(folder), fs::directory_iterator()};
}

// fs::copy takes two folders on one drive of Windows for the same one.
void CopyEntries(const fs::path& source, const fs::path& destination) {
    for (const fs::directory_entry& entry : EntriesBelow(source)) {
        const fs::path name = entry.path().lexically_relative(source);
        if (entry.is_directory())
            fs::create_directory(destination / name);
        else
            fs::copy_file(entry.path(), destination / name);
    }
}

}  // namespace

ExportFolder::ExportFolder(const DesktopSystem& system, const fs::path& folder)
    : folder_(system.AbsolutePath(folder)) {
    std::error_code error;
    const fs::file_status status = fs::status(folder_, error);
    if (fs::is_directory(status)) {
        folder_ = system.RealPath(folder_, error);
        const bool empty = fs::is_empty(folder_, error);
        if (error) Refuse(TextOf(folder_) + " cannot be looked into: " + error.message() + ".");
        if (!empty) Refuse(TextOf(folder_) + " is not empty.");
        exists_ = true;
    } else if (fs::exists(fs::symlink_status(folder_, error))) {
        Refuse(TextOf(folder_) + " is not a folder.");
    } else if (!fs::is_directory(folder_.parent_path(), error)) {
        Refuse(TextOf(folder_.parent_path()) + " is not a folder that exists.");
    }
}

void ExportFolder::Fill(const fs::path& source, std::uint64_t program) const {
    // The files gather in a folder beside, or inside one that exists, and move when all are there.
    const std::string suffix = ".part" + std::to_string(program);
    const fs::path gathering = exists_ ? folder_ / suffix : PathOf(TextOf(folder_) + suffix);
    std::vector<fs::path> made;
    try {
        if (!fs::create_directory(gathering)) Fail(std::errc::file_exists);
        made.push_back(gathering);
        CopyEntries(source, gathering);
        if (!exists_) return fs::rename(gathering, folder_);
        if (EntriesOf(folder_).size() > 1) Fail(std::errc::directory_not_empty);
        for (const fs::path& entry : EntriesOf(gathering)) {
            made.push_back(folder_ / entry.filename());
            fs::rename(entry, made.back());
        }
        fs::remove(gathering);
    } catch (const fs::filesystem_error& error) {
        std::error_code ignored;
        for (const fs::path& path : made)
            fs::remove_all(path, ignored);
        Refuse(TextOf(folder_) + " cannot be written: " + error.code().message() + ".");
    }
}

std::string ExportFolder::WouldFill(const fs::path& source) const {
    std::set<std::string> lines;
    for (const auto& entry : fs::directory_iterator(source)) {
        lines.insert("would create " + TextOf(folder_ / entry.path().filename()) + "\n");
    }
    return std::accumulate(lines.begin(), lines.end(), std::string());
}

}  // namespace morpho
