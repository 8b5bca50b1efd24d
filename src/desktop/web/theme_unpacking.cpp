#include "desktop/web/theme_unpacking.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "desktop/disk/disk_path.h"
#include "desktop/disk/file_error.h"
#include "desktop/text/windows_1252.h"
#include "desktop/web/theme_addresses.h"
#include "platform/ignoring_case.h"
#include "platform/run_time_error.h"
#include "theme_editor/theme_package.h"

namespace morpho {

namespace {

using Member = ThemePackage::Member;

std::optional<std::string> FileOf(const DiskFolder& folder, const std::string& name) {
    const auto entry = FindEntry(folder, name);
    if (!entry) return {};
    return ReadWebFile(folder, entry->name);
}

// The files of the theme as installed in this store, its description last; nothing when it is not
// there, or not complete.
std::optional<std::vector<Member>> InstalledIn(const std::string& store, const std::string& name) {
    std::error_code ignored;
    if (store.empty() || !std::filesystem::is_directory(store, ignored)) return {};
    const DiskFolder themes = DiskFolder::Open(store, true);
    const auto entry = FindEntry(themes, NameToDisk(name));
    if (!entry || entry->kind != DiskKind::kFolder) return {};
    const DiskFolder folder = themes.Subfolder(entry->name);
    const auto description = FileOf(folder, entry->name + ".inf");
    const auto package = FileOf(folder, entry->name + ".elm");
    if (!description || !package) return {};
    std::vector<Member> members = ReadThemePackage(Windows1252(), *package).members;
    const std::string descriptionName = name + ".inf";
    std::erase_if(members, [&](const Member& member) {
        return EqualIgnoringCase(member.name, descriptionName);
    });
    members.push_back({descriptionName, *description});
    return members;
}

void KeepOwnPictures(std::vector<Member>& members) {
    std::set<std::string> names;
    for (const Member& member : members)
        names.insert(Lowered(member.name));
    for (Member& member : members) {
        if (!Lowered(member.name).ends_with(".css")) continue;
        member.bytes = WithOwnPictures(
            member.bytes, [&](const std::string& file) { return names.contains(Lowered(file)); });
    }
}

// A folder's files while they are replaced. Unless it is finished, all is put back.
class FolderUpdate {
  public:
    FolderUpdate(WebWriter& writer, const DiskFolder& folder) : writer_(writer), folder_(folder) {
        for (const DiskEntry& entry : folder.Entries()) {
            entries_.emplace(entry.name, entry);
            entries_.emplace(Lowered(entry.name), entry);
        }
    }
    ~FolderUpdate() {
        if (isFinished_) return;
        for (const auto& [path, bytes] : earlier_)
            PutBack(path, bytes);
    }
    FolderUpdate(const FolderUpdate&) = delete;
    FolderUpdate& operator=(const FolderUpdate&) = delete;

    // Refuses, before anything is written, what cannot become a file.
    void Check(const Member& member) const {
        const std::string name = NameToDisk(member.name);
        const DiskEntry* existing = Existing(name);
        if (!IsEntryName(name) || (existing && existing->kind != DiskKind::kFile))
            throw FileError(ErrorNumber::kPathFileAccess, folder_.PathOf(name),
                            "could not be written", "something stands there that is no file");
    }

    void Write(const Member& member) {
        std::string name = NameToDisk(member.name);
        std::optional<std::string> bytes;
        if (const DiskEntry* existing = Existing(name)) {
            name = existing->name;
            bytes = ReadWebFile(folder_, name);
            if (*bytes == member.bytes) return;
        }
        writer_.ReplaceFile(folder_.PathOf(name), member.bytes);
        earlier_.emplace_back(folder_.PathOf(name), std::move(bytes));
    }

    void Finish() { isFinished_ = true; }

  private:
    // What this name means: the entry spelled so, else one that differs in letter case only.
    const DiskEntry* Existing(const std::string& name) const {
        auto found = entries_.find(name);
        if (found == entries_.end()) found = entries_.find(Lowered(name));
        return found == entries_.end() ? nullptr : &found->second;
    }

    void PutBack(const std::string& path, const std::optional<std::string>& bytes) const noexcept {
        try {
            if (bytes) {
                writer_.ReplaceFile(path, *bytes);
            } else {
                writer_.RemoveFile(path);
            }
        } catch (const std::exception&) {
            // The others may still go back; the next save of this theme writes it anew.
        }
    }

    WebWriter& writer_;
    const DiskFolder& folder_;
    std::map<std::string, DiskEntry> entries_;  // by their names, also in lower case
    std::vector<std::pair<std::string, std::optional<std::string>>> earlier_;
    bool isFinished_ = false;
};

std::optional<DiskFolder> FolderOfTheme(const WebSession& web, const std::string& diskName) {
    return FindFolderInWeb(web, {"_themes", diskName});
}

// "_themes" in the web, created when it is missing.
DiskFolder ThemesFolder(const WebSession& web) {
    const DiskFolder root = web.Root();
    const auto entry = FindEntry(root, "_themes");
    if (!entry) web.writer->MakeFolder(root.PathOf("_themes"));
    return root.Subfolder(entry ? entry->name : "_themes");
}

void WriteMembers(const WebSession& web, const DiskFolder& folder,
                  const std::vector<Member>& members) {
    FolderUpdate update(*web.writer, folder);
    for (const Member& member : members)
        update.Check(member);
    for (const Member& member : members)
        update.Write(member);
    update.Finish();
}

void CreateWithMembers(const WebSession& web, const std::string& diskName,
                       const std::vector<Member>& members) {
    const DiskFolder themes = ThemesFolder(web);
    web.writer->MakeFolder(themes.PathOf(diskName));
    try {
        WriteMembers(web, themes.Subfolder(diskName), members);
    } catch (const RunTimeError&) {
        // Empty again by now; one that stays is no theme.
        ::rmdir(themes.PathOf(diskName).c_str());
        throw;
    }
}

}  // namespace

std::string PutThemeIntoWeb(const WebSession& web, const std::string& name) {
    const std::string diskName = NameToDisk(name);
    if (!IsEntryName(diskName))
        throw RunTimeError(ErrorNumber::kAutomation, "\"" + name + "\" is no theme's name.");
    auto members = InstalledIn(web.stores.ofUser, name);
    if (!members) members = InstalledIn(web.stores.forWeb, name);
    const auto folder = FolderOfTheme(web, diskName);
    if (!members && (!folder || !FindEntry(*folder, diskName + ".inf")))
        throw RunTimeError(ErrorNumber::kAutomation,
                           "There is no theme \"" + name + "\" to be applied.");
    if (members) KeepOwnPictures(*members);
    if (folder && members) WriteMembers(web, *folder, *members);
    if (!folder) CreateWithMembers(web, diskName, *members);
    return folder ? NameFromDisk(LastName(folder->Path())) : name;
}

}  // namespace morpho
