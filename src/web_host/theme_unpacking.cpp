#include "web_host/theme_unpacking.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <set>

#include "formats/theme_addresses.h"
#include "formats/theme_package.h"
#include "formats/windows_1252_code_page.h"
#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

using Member = ThemePackage::Member;

std::optional<std::string> FileOf(const DiskFolder& folder, const std::string& name) {
    const auto entry = folder.Find(name);
    if (!entry) return {};
    return ReadWebFile(folder, entry->name);
}

// The files of the theme as installed in this store, its description last; nothing when it is not
// there, or not complete.
std::optional<std::vector<Member>> InstalledIn(const std::string& store, const std::string& name) {
    std::error_code ignored;
    if (store.empty() || !std::filesystem::is_directory(store, ignored)) return {};
    const DiskFolder themes = DiskFolder::Open(store, true);
    const auto entry = themes.Find(NameToDisk(name));
    if (!entry || entry->kind != DiskKind::kFolder) return {};
    const DiskFolder folder = themes.Subfolder(entry->name);
    const auto description = FileOf(folder, entry->name + ".inf");
    const auto package = FileOf(folder, entry->name + ".elm");
    if (!description || !package) return {};
    std::vector<Member> members = ReadThemePackage(Windows1252CodePage(), *package).members;
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

// Gives a folder the members of a package. Unless all goes well, everything is put back.
class FolderUpdate {
  public:
    FolderUpdate(WebWriter& writer, const DiskFolder& folder) : writer_(writer), folder_(folder) {
        for (const DiskEntry& entry : folder.Entries()) {
            entries_.emplace(entry.name, entry);
            entries_.emplace(Lowered(entry.name), entry);
        }
    }
    ~FolderUpdate() {
        if (!isDone_) PutAllBack();
    }
    FolderUpdate(const FolderUpdate&) = delete;
    FolderUpdate& operator=(const FolderUpdate&) = delete;

    void Write(const std::vector<Member>& members) {
        for (const Member& member : members)
            Prepare(member);
        writer_.ReplaceFiles(replaced_);
        for (const FileChange& change : replaced_) {
            if (change.failure) throw RunTimeError(*change.failure);
        }
        for (; added_ < new_.size(); ++added_)
            writer_.AddFile(new_[added_].path, new_[added_].bytes);
        writer_.Flush();
        isDone_ = true;
    }

  private:
    // Refuses, before anything is written, what cannot become a file.
    void Prepare(const Member& member) {
        const std::string name = NameToDisk(member.name);
        const DiskEntry* existing = Existing(name);
        if (!IsEntryName(name) || (existing && existing->kind != DiskKind::kFile))
            throw FileError(ErrorNumber::kPathFileAccess, folder_.PathOf(name),
                            "could not be written", "something stands there that is no file");
        if (!existing) return new_.push_back({folder_.PathOf(name), member.bytes});
        std::string bytes = ReadWebFile(folder_, existing->name);
        if (bytes == member.bytes) return;
        replaced_.push_back({folder_.PathOf(existing->name), member.bytes});
        earlier_.push_back(std::move(bytes));
    }

    // What this name means: the entry spelled so, else one that differs in letter case only.
    const DiskEntry* Existing(const std::string& name) const {
        auto found = entries_.find(name);
        if (found == entries_.end()) found = entries_.find(Lowered(name));
        return found == entries_.end() ? nullptr : &found->second;
    }

    void PutAllBack() {
        for (std::size_t i = 0; i < added_; ++i)
            AsFarAsPossible([&] { writer_.RemoveFile(new_[i].path); });
        for (std::size_t i = 0; i < replaced_.size(); ++i) {
            if (replaced_[i].isDone)
                AsFarAsPossible([&] { writer_.ReplaceFile(replaced_[i].path, earlier_[i]); });
        }
    }

    static void AsFarAsPossible(const std::function<void()>& step) {
        try {
            step();
        } catch (const RunTimeError&) {
            // The others may still go back; the next save of this theme writes it anew.
        }
    }

    WebWriter& writer_;
    const DiskFolder& folder_;
    std::map<std::string, DiskEntry> entries_;  // by their names, also in lower case
    std::vector<FileChange> replaced_;
    std::vector<std::string> earlier_;  // what stood in the replaced
    std::vector<FileChange> new_;       // in the order of the package
    std::size_t added_ = 0;             // how many of the new ones are there
    bool isDone_ = false;
};

std::optional<DiskFolder> FolderOfTheme(const WebSession& web, const std::string& diskName) {
    return FindFolderInWeb(web, {"_themes", diskName});
}

// "_themes" in the web, created when it is missing.
DiskFolder ThemesFolder(const WebSession& web) {
    const DiskFolder root = web.Root();
    const auto entry = root.Find("_themes");
    if (!entry) web.writer->MakeFolder(root.PathOf("_themes"));
    return root.Subfolder(entry ? entry->name : "_themes");
}

void CreateWithMembers(const WebSession& web, const DiskFolder& themes, const std::string& diskName,
                       const std::vector<Member>& members) {
    web.writer->MakeFolder(themes.PathOf(diskName));
    try {
        const DiskFolder folder = themes.Subfolder(diskName);
        FolderUpdate(*web.writer, folder).Write(members);
    } catch (const RunTimeError&) {
        // Empty again by now; one that stays is no theme.
        ::rmdir(themes.PathOf(diskName).c_str());
        throw;
    }
}

bool Differs(const DiskFolder& folder, const Member& member) {
    const auto entry = folder.Find(NameToDisk(member.name));
    return entry && entry->kind == DiskKind::kFile &&
           ReadWebFile(folder, entry->name) != member.bytes;
}

}  // namespace

bool ReplacesThemeOfWeb(const WebSession& web, const std::string& name) {
    const std::string diskName = NameToDisk(name);
    const auto folder = IsEntryName(diskName) ? FolderOfTheme(web, diskName) : std::nullopt;
    auto members = folder ? InstalledIn(web.stores.ofUser, name) : std::nullopt;
    if (!members) return false;
    KeepOwnPictures(*members);
    return std::any_of(members->begin(), members->end(),
                       [&](const Member& member) { return Differs(*folder, member); });
}

std::string PutThemeIntoWeb(WebSession& web, const std::string& name) {
    const std::string diskName = NameToDisk(name);
    if (!IsEntryName(diskName))
        throw RunTimeError(ErrorNumber::kAutomation, "\"" + name + "\" is no theme's name.");
    auto members = InstalledIn(web.stores.ofUser, name);
    if (!members) members = InstalledIn(web.stores.forWeb, name);
    const auto folder = FolderOfTheme(web, diskName);
    if (!members && (!folder || !folder->Find(diskName + ".inf")))
        throw RunTimeError(ErrorNumber::kAutomation,
                           "There is no theme \"" + name + "\" to be applied.");
    if (members) KeepOwnPictures(*members);
    const DiskFolder themes = ThemesFolder(web);
    web.changeNote.Hold(themes.Path(), {ThemeChange::Kind::kApplying, diskName});
    if (folder && members) FolderUpdate(*web.writer, *folder).Write(*members);
    if (!folder) CreateWithMembers(web, themes, diskName, *members);
    return folder ? NameFromDisk(LastName(folder->Path())) : name;
}

}  // namespace morpho
