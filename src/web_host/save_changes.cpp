#include "web_host/save_changes.h"

#include <functional>
#include <map>
#include <vector>

#include "platform/run_time_error.h"
#include "text/digest.h"
#include "web_host/limits.h"

namespace morpho {

namespace {

// One step of several: the others still run when it fails. Whether it went well.
bool Succeeds(const std::function<void()>& step) {
    try {
        step();
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

void RemoveIfThere(Folder& folder, const std::string& name) {
    if (!name.empty() && !DigestOf(folder, name).empty()) folder.Remove(name);
}

void RemoveTemporaryFiles(Folder& folder, std::uint64_t program) {
    for (const FolderEntry& entry : folder.Entries()) {
        if (entry.kind == EntryKind::kFile && ProgramOfTemporaryName(entry.name) == program)
            folder.Remove(entry.name);
    }
}

}  // namespace

std::string DigestOf(const Folder& folder, const std::string& name) {
    try {
        return Digest(ReadWholeFile(folder, name, kMaxFileBytes));
    } catch (const RunTimeError& error) {
        if (error.Number() == ErrorNumber::kFileNotFound) return {};
        const auto entry = folder.Find(name);
        if (entry && entry->kind != EntryKind::kFile) return {};
        throw;
    }
}

std::unique_ptr<Folder> SaveChanges::ThemeFolder(const std::string& theme) const {
    return web_.OpenFolder({std::string(kThemesFolder), theme});
}

void SaveChanges::Flush() {
    std::map<std::string, std::vector<std::string>> names;
    for (const SaveRecord::ThemeFile& file : record_.files)
        names[file.theme].push_back(file.temporaryName);
    for (const auto& [theme, temporaryNames] : names)
        ThemeFolder(theme)->Flush(temporaryNames);
    if (record_.newThemeFolder.empty()) return;
    const auto folder = ThemeFolder(record_.newThemeFolder);
    std::vector<std::string> files;
    for (const FolderEntry& entry : folder->Entries()) {
        if (entry.kind == EntryKind::kFile) files.push_back(entry.name);
    }
    folder->Flush(files);
}

void SaveChanges::Complete() {
    std::map<std::string, std::unique_ptr<Folder>> folders;
    for (const SaveRecord::ThemeFile& file : record_.files) {
        auto& folder = folders[file.theme];
        if (!folder) folder = ThemeFolder(file.theme);
        CompleteFile(*folder, file);
    }
    for (const auto& [theme, folder] : folders)
        folder->Flush({});
    if (!record_.newThemeFolder.empty()) CompleteNewTheme();
}

void SaveChanges::CompleteNewTheme() {
    const auto themes = web_.OpenFolder({std::string(kThemesFolder)});
    if (!themes->Find(record_.newThemeFolder)) {
        if (themes->Find(record_.theme)) return;
        throw EntryError(ErrorNumber::kPathNotFound, *themes, record_.theme, "was not created",
                         "another program has taken the new folder away");
    }
    themes->Rename(record_.newThemeFolder, record_.theme);
    try {
        themes->Flush({});
    } catch (const RunTimeError&) {
        // The roll-back knows the folder by its temporary name only.
        themes->Rename(record_.theme, record_.newThemeFolder);
        throw;
    }
}

void SaveChanges::CompleteFile(Folder& folder, const SaveRecord::ThemeFile& file) {
    const std::string now = DigestOf(folder, file.name);
    const bool isWaiting = DigestOf(folder, file.temporaryName) == file.digestAfter;
    if (now == file.digestAfter && !isWaiting) return;
    if (now != file.digestBefore || !isWaiting)
        throw EntryError(ErrorNumber::kPathFileAccess, folder, file.name, "was not replaced",
                         "another program has changed it");
    folder.Rename(file.temporaryName, file.name);
}

bool SaveChanges::RemoveEarlier() {
    bool all = true;
    for (const SaveRecord::ThemeFile& file : record_.files)
        all &= Succeeds([&] { RemoveIfThere(*ThemeFolder(file.theme), file.earlierName); });
    return all;
}

bool SaveChanges::RollBack() {
    bool all = true;
    for (const SaveRecord::ThemeFile& file : record_.files)
        all &= Succeeds([&] { RollBackFile(*ThemeFolder(file.theme), file); });
    all &= Succeeds([&] { RemoveNewTheme(); });
    all &= Succeeds([&] { RestoreUserTheme(); });
    return all;
}

void SaveChanges::RollBackFile(Folder& folder, const SaveRecord::ThemeFile& file) {
    RemoveIfThere(folder, file.temporaryName);
    const bool isReplaced =
        DigestOf(folder, file.name) == file.digestAfter && file.digestAfter != file.digestBefore;
    if (file.earlierName.empty()) {
        if (isReplaced) folder.Remove(file.name);
    } else if (isReplaced && DigestOf(folder, file.earlierName) == file.digestBefore) {
        folder.Rename(file.earlierName, file.name);
    } else {
        RemoveIfThere(folder, file.earlierName);
    }
}

void SaveChanges::RemoveNewTheme() {
    if (record_.newThemeFolder.empty()) return;
    const auto themes = web_.OpenFolder({std::string(kThemesFolder)});
    const auto entry = themes->Find(record_.newThemeFolder);
    if (entry && entry->kind == EntryKind::kFolder) themes->RemoveFolder(entry->name);
}

void SaveChanges::RestoreUserTheme() {
    if (!record_.changesUserTheme) return;
    const auto themes = disk_.OpenOrCreate(stores_.ofUser);
    if (!record_.userHadTheme) return RemoveUserTheme(*themes);
    const auto entry = themes->Find(record_.theme);
    if (!entry || entry->kind != EntryKind::kFolder) return;
    const auto theme = themes->Open(entry->name);
    const auto copies = journal_.Copies();
    for (const char* const extension : {".inf", ".elm"}) {
        if (!copies->Find(entry->name + extension)) RemoveIfThere(*theme, entry->name + extension);
    }
    for (const FolderEntry& copy : copies->Entries()) {
        if (DigestOf(*theme, copy.name) == DigestOf(*copies, copy.name)) continue;
        RemoveIfThere(*theme, copy.name);
        copies->Link(copy.name, *theme, copy.name);
    }
}

// The user had no such theme: what is called so is the save's own.
void SaveChanges::RemoveUserTheme(Folder& themes) {
    const auto entry = themes.Find(record_.theme);
    if (!entry || entry->kind != EntryKind::kFolder) return;
    const auto theme = themes.Open(entry->name);
    for (const char* const extension : {".inf", ".elm"})
        RemoveIfThere(*theme, record_.theme + extension);
    if (theme->Entries().empty()) themes.RemoveFolder(entry->name);
}

void SaveChanges::Sweep() {
    Succeeds([&] {
        const auto themes = disk_.OpenOrCreate(stores_.ofUser);
        RemoveTemporaryFiles(*themes, record_.program);
        RemoveIfThere(*themes, record_.theme + "#.inf");  // the description of a theme on its way
        const auto entry = themes->Find(record_.theme);
        if (entry && entry->kind == EntryKind::kFolder)
            RemoveTemporaryFiles(*themes->Open(entry->name), record_.program);
    });
    Succeeds([&] {
        const auto themes = web_.FindFolder({std::string(kThemesFolder)});
        if (!themes) return;
        RemoveTemporaryFiles(*themes, record_.program);
        const auto folder = web_.FindFolder({std::string(kThemesFolder), record_.theme});
        if (folder) RemoveTemporaryFiles(*folder, record_.program);
    });
}

}  // namespace morpho
