#include "linux/folder_tree.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

#include "linux/file_error.h"

namespace morpho {

namespace {

constexpr std::string_view kFailure = "could not be deleted completely";

// Removes what is no folder, and keeps the folders' names for later.
std::vector<std::string> RemoveFiles(const DiskFolder& folder) {
    std::vector<std::string> folders;
    for (const DiskEntry& entry : folder.Entries()) {
        if (entry.kind == DiskKind::kFolder) {
            folders.push_back(entry.name);
        } else if (::unlinkat(folder.Number(), entry.name.c_str(), 0) != 0 && errno != ENOENT) {
            throw FileError(errno, folder.PathOf(entry.name), kFailure);
        }
    }
    return folders;
}

}  // namespace

void RemoveTree(const DiskFolder& folder, const std::string& name) {
    // A loop, not a recursion: folders of strangers may be of any depth.
    struct Level {
        DiskFolder folder;
        std::vector<std::string> rest;
    };
    std::vector<Level> levels;
    levels.push_back({folder.Again(), {name}});
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.rest.empty()) {
            levels.pop_back();
            continue;
        }
        const std::string next = level.rest.back();
        if (::unlinkat(level.folder.Number(), next.c_str(), AT_REMOVEDIR) == 0 || errno == ENOENT) {
            level.rest.pop_back();
            continue;
        }
        if (errno != ENOTEMPTY && errno != EEXIST)
            throw FileError(errno, level.folder.PathOf(next), kFailure);
        DiskFolder inner = level.folder.Subfolder(next);
        std::vector<std::string> folders = RemoveFiles(inner);
        if (!folders.empty()) levels.push_back({std::move(inner), std::move(folders)});
    }
}

}  // namespace morpho
