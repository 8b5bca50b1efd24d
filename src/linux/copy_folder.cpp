#include "linux/copy_folder.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <map>
#include <utility>
#include <vector>

#include "linux/disk_folder.h"
#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

// The names that stand in a folder, found without regard to letter case.
class NamesPresent {
  public:
    explicit NamesPresent(const std::string& folder) {
        for (const DiskEntry& entry : DiskFolder::Open(folder, true).Entries())
            names_[Folded(entry.name)].push_back(entry.name);
    }

    // The name of the entry that `name` means; `name` itself where there is none.
    std::string Actual(const std::string& name) const {
        const auto found = names_.find(Folded(name));
        if (found == names_.end()) return name;
        for (const std::string& candidate : found->second) {
            if (candidate == name) return name;
        }
        return found->second.front();
    }

  private:
    std::map<std::string, std::vector<std::string>> names_;
};

std::string RealPath(const std::string& diskPath) {
    char* resolved = ::realpath(diskPath.c_str(), nullptr);
    if (!resolved) throw FileError(errno, diskPath, "could not be opened");
    std::string path = resolved;
    std::free(resolved);
    return path;
}

void RefuseCopyIntoItself(const std::string& source, const std::string& destination) {
    const std::string inner = JoinDiskPath(RealPath(destination), "");
    if (inner.starts_with(JoinDiskPath(RealPath(source), "")))
        throw FileError(ErrorNumber::kPathFileAccess, source, "could not be copied",
                        "the destination lies inside it");
}

void CopyOneFile(const DiskFolder& folder, const std::string& name, const std::string& target,
                 Durability durability) {
    const Descriptor file = folder.OpenFile(name);
    if (HoldsSameBytes(target, file, folder.PathOf(name))) return;
    WholeFile copy(target, durability);
    copy.CopyFrom(file, folder.PathOf(name));
    copy.Commit();
}

void MakeFolder(const std::string& diskPath) {
    if (::mkdir(diskPath.c_str(), 0777) != 0 && errno != EEXIST)
        throw FileError(errno, diskPath, "could not be created");
}

}  // namespace

void CopyFolderContents(const std::string& source, const std::string& destination,
                        Durability durability) {
    RefuseCopyIntoItself(source, destination);
    std::vector<std::pair<std::string, std::string>> pending = {{source, destination}};
    while (!pending.empty()) {
        const auto [from, to] = std::move(pending.back());
        pending.pop_back();
        const DiskFolder folder = DiskFolder::Open(from, from == source);
        const NamesPresent present(to);
        for (const DiskEntry& entry : folder.Entries()) {
            const std::string target = JoinDiskPath(to, present.Actual(entry.name));
            if (entry.kind == DiskKind::kFile) {
                CopyOneFile(folder, entry.name, target, durability);
            } else if (entry.kind == DiskKind::kFolder) {
                MakeFolder(target);
                pending.emplace_back(folder.PathOf(entry.name), target);
            }
        }
    }
}

}  // namespace morpho
