#include "web_host/web_save_transaction.h"

#include "text/digest.h"
#include "text/ignoring_case.h"
#include "web_host/entry_index.h"
#include "web_host/page_update.h"
#include "web_host/save_repair.h"
#include "web_host/theme_of_web.h"

namespace morpho {

namespace {

std::optional<PackedTheme> FindPacked(const WebSession& web, const std::string& store,
                                      const std::string& name) {
    if (store.empty()) return {};
    return PackedTheme::Find(*web.TheDisk().OpenOrCreate(store), name);
}

// The name of the theme's folder as spelled on the disk; the name itself when there is none.
std::string SpelledName(const WebFiles& web, const std::string& name) {
    const auto themes = web.FindFolder({std::string(kThemesFolder)});
    const auto entry = themes ? themes->Find(name) : std::nullopt;
    return entry ? entry->name : name;
}

}  // namespace

WebSaveTransaction::WebSaveTransaction(WebSession& web, const std::string& theme, Purpose purpose)
    : web_(web),
      journal_(web.TheDisk(), web.Options().stores.saves),
      changes_(web.TheDisk(), web.Files(), web.Options().stores, journal_, record_) {
    const Folder& root = web.Files().Root();
    record_.machine = web.TheDisk().Machine();
    record_.program = web.TheDisk().Program();
    record_.webId = root.Id();
    record_.theme = theme;
    record_.changesUserTheme = purpose == Purpose::kSave;
    try {
        web.Reports().Take();
        web.SetKeptThemes({});
        Lock();
        // Another program may have been killed here since this one opened the web.
        RepairWhileLocked(web);
        record_.webTheme = ThemeOfWeb(root);
        journal_.Remove();
        if (record_.changesUserTheme) ProtectUserTheme();
        WriteRecord(Durability::kUnflushed);
    } catch (const RunTimeError&) {
        End();
        throw;
    }
    web_.SetTransaction(this);
}

WebSaveTransaction::~WebSaveTransaction() {
    if (!hasEnded_) RollBack();
}

void WebSaveTransaction::Lock() {
    if (!web_.Files().FindFolder({std::string(kThemesFolder)})) {
        web_.Files().Root().Create(kThemesFolder);
        createdThemesFolder_ = true;
    }
    std::string holder;
    locks_ = TryLockForSave(web_, holder);
    if (!locks_.AreHeld())
        throw RunTimeError(ErrorNumber::kPermissionDenied,
                           "Nothing was written: a theme is being saved by " + holder + ".");
}

// Keeps copies of the user's theme of this name, for a save that is killed.
void WebSaveTransaction::ProtectUserTheme() {
    const auto themes = web_.TheDisk().OpenOrCreate(web_.Options().stores.ofUser);
    const auto entry = themes->Find(record_.theme);
    if (!entry || entry->kind != EntryKind::kFolder) return;
    const auto theme = themes->Open(entry->name);
    record_.userHadTheme = theme->Find(entry->name + ".inf").has_value();
    if (!record_.userHadTheme) return;
    const auto copies = journal_.Copies();
    for (const FolderEntry& file : theme->Entries()) {
        if (file.kind == EntryKind::kFile) theme->Link(file.name, *copies, file.name);
    }
}

void WebSaveTransaction::CreateTheme(const std::string& name) {
    const auto themes = web_.Files().OpenFolder({std::string(kThemesFolder)});
    if (themes->Find(name) || !record_.newThemeFolder.empty())
        throw EntryError(ErrorNumber::kFileExists, *themes, name, "could not be created",
                         "it exists already");
    record_.theme = name;
    record_.newThemeFolder = NewTemporaryName(record_.program);
    WriteRecord(Durability::kUnflushed);
    themes->Create(record_.newThemeFolder);
    web_.Files().RedirectTheme(name, record_.newThemeFolder);
}

bool WebSaveTransaction::HasCreated(const std::string& name) const {
    return !record_.newThemeFolder.empty() && EqualIgnoringCase(name, record_.theme);
}

void WebSaveTransaction::DropTheme() {
    const auto themes = web_.Files().OpenFolder({std::string(kThemesFolder)});
    themes->RemoveFolder(record_.newThemeFolder);
    web_.Files().RedirectTheme({}, {});
    record_.newThemeFolder.clear();
    WriteRecord(Durability::kUnflushed);
}

std::optional<SaveRecord::ThemeFile> WebSaveTransaction::PlannedChange(
    const EntryIndex& entries, const std::string& theme, const std::string& name,
    const std::string& bytes) const {
    const auto entry = entries.FindFile(name);
    SaveRecord::ThemeFile file{theme, entry ? entry->name : name, {}, {}, {}, Digest(bytes)};
    if (entry) file.digestBefore = DigestOf(entries.Of(), entry->name);
    if (file.digestBefore == file.digestAfter) return {};
    file.temporaryName = NewTemporaryName(record_.program);
    if (entry) file.earlierName = NewTemporaryName(record_.program);
    return file;
}

void WebSaveTransaction::WriteTemporary(Folder& folder, const SaveRecord::ThemeFile& file,
                                        const std::string& bytes) {
    if (!file.earlierName.empty()) folder.Link(file.name, folder, file.earlierName);
    const auto waiting = folder.AddLike(file.temporaryName, file.name);
    waiting->Write(bytes);
    waiting->Commit();
}

void WebSaveTransaction::ReplaceThemeFile(const std::string& theme, const std::string& name,
                                          const std::string& bytes) {
    const auto folder = web_.Files().OpenFolder({std::string(kThemesFolder), theme});
    const auto file = PlannedChange(EntryIndex(*folder), theme, name, bytes);
    if (!file) return;
    record_.files.push_back(*file);
    WriteRecord(Durability::kUnflushed);
    WriteTemporary(*folder, *file, bytes);
}

void WebSaveTransaction::ReplaceWithPacked(const PackedTheme& packed, const std::string& theme,
                                           Folder& folder) {
    const EntryIndex entries(folder);
    std::vector<std::pair<std::size_t, SaveRecord::ThemeFile>> planned;
    for (std::size_t i = 0; i < packed.FileCount(); ++i) {
        if (auto file = PlannedChange(entries, theme, packed.FileName(i), packed.FileBytes(i)))
            planned.emplace_back(i, std::move(*file));
    }
    for (const auto& [index, file] : planned)
        record_.files.push_back(file);
    WriteRecord(Durability::kUnflushed);
    for (const auto& [index, file] : planned)
        WriteTemporary(folder, file, packed.FileBytes(index));
}

void WebSaveTransaction::FillWithPacked(const PackedTheme& packed, Folder& folder) {
    const EntryIndex entries(folder);
    for (std::size_t i = 0; i < packed.FileCount(); ++i) {
        const std::string name = packed.FileName(i);
        const auto entry = entries.FindFile(name);
        const std::string bytes = packed.FileBytes(i);
        if (entry && DigestOf(folder, entry->name) == Digest(bytes)) continue;
        WriteWholeFile(folder, entry ? entry->name : name, bytes, Durability::kUnflushed);
    }
}

void WebSaveTransaction::ApplyTheme(const std::string& name) {
    web_.SetThemeShown(false);
    const ThemeStores& stores = web_.Options().stores;
    auto packed = FindPacked(web_, stores.ofUser, name);
    if (!packed) packed = FindPacked(web_, stores.forWeb, name);
    const std::string theme = SpelledName(web_.Files(), name);
    auto folder = web_.Files().FindFolder({std::string(kThemesFolder), theme});
    if (!packed && (!folder || !folder->Find(theme + ".inf")))
        throw RunTimeError(ErrorNumber::kAutomation,
                           "There is no theme \"" + name + "\" to be applied.");
    if (packed && !folder) {
        CreateTheme(name);
        folder = web_.Files().OpenFolder({std::string(kThemesFolder), name});
    }
    if (packed && HasCreated(theme)) {
        FillWithPacked(*packed, *folder);
    } else if (packed) {
        ReplaceWithPacked(*packed, theme, *folder);
    }
    record_.appliedTheme = theme;
}

void WebSaveTransaction::Commit() {
    web_.Work().run([this] { CommitAll(); });
}

void WebSaveTransaction::CommitAll() {
    try {
        changes_.Flush();
        record_.isCommitted = true;
        WriteRecord(Durability::kFlushed);
        changes_.Complete();
    } catch (const RunTimeError&) {
        RollBack();
        throw;
    }
    web_.Files().RedirectTheme({}, {});
    const bool isRemoved = changes_.RemoveEarlier();
    UpdatePages();
    // What could not be removed may have been in use.
    if (!isRemoved && !changes_.RemoveEarlier())
        web_.Reports().Add("Temporary files of the save could not be deleted from the theme \"" +
                           record_.theme + "\".");
    End();
}

void WebSaveTransaction::UpdatePages() {
    const bool applies = !record_.appliedTheme.empty();
    const auto report = [this](const std::string& sentence) { web_.Reports().Add(sentence); };
    try {
        if (applies || recalculates_) {
            PageUpdate pages(web_.Files(),
                             applies ? std::optional(record_.appliedTheme) : std::nullopt,
                             record_.pages, report);
            pages.SetProgress(web_.Work().advanced);
            pages.Run();
            web_.SetThemeShown(pages.IsThemeShown());
            if (applies) web_.SetKeptThemes(pages.KeptThemes());
            if (applies && !KeepsThemeOfWeb()) pages.ReportKeptThemes();
            for (const std::string& line : pages.BrokenAddresses()) {
                if (recalculates_) web_.Reports().WriteLog(line);
            }
        }
        if (applies || refreshes_) web_.RefreshThemes();
    } catch (const RunTimeError& error) {
        report(error.what());
    }
}

// Nobody expects other pages to change when the web's theme is saved over itself.
bool WebSaveTransaction::KeepsThemeOfWeb() const {
    return record_.changesUserTheme && EqualIgnoringCase(record_.webTheme, record_.appliedTheme);
}

void WebSaveTransaction::RollBack() {
    try {
        // Should the program be killed now, the next start rolls back, too.
        record_.isCommitted = false;
        WriteRecord(Durability::kUnflushed);
    } catch (const RunTimeError&) {
        // Then the next start may complete the save; the web is whole either way.
    }
    isRolledBack_ = changes_.RollBack();
    End();
}

// Whether it went well or not, the themes of web and user are whole now.
void WebSaveTransaction::End() {
    hasEnded_ = true;
    // One that could not begin may find another one running.
    if (web_.Transaction() == this) {
        web_.Files().RedirectTheme({}, {});
        web_.SetTransaction(nullptr);
    }
    const bool removesThemesFolder = createdThemesFolder_ && !record_.isCommitted;
    try {
        EndJournal();
        locks_.Release();
        const auto themes = web_.Files().FindFolder({std::string(kThemesFolder)});
        if (removesThemesFolder && themes && themes->Entries().empty())
            web_.Files().Root().RemoveFolder(kThemesFolder);
    } catch (const RunTimeError& error) {
        web_.Reports().Add(error.what());
    }
    locks_.Release();
    web_.Reports().Deliver();
}

void WebSaveTransaction::EndJournal() {
    // Without the locks it would be the journal of the program that has them.
    if (!locks_.AreHeld()) return;
    if (!record_.isCommitted) {
        // Otherwise the next start has another go at the rest.
        if (isRolledBack_) journal_.Remove();
        return;
    }
    record_.hasEnded = true;
    WriteRecord(Durability::kUnflushed);
    journal_.RemoveCopies();
    web_.SetSaved();
}

bool ReplacesThemeOfWeb(const WebSession& web, const std::string& name) {
    const auto folder = web.Files().FindFolder({std::string(kThemesFolder), name});
    const auto packed = folder ? FindPacked(web, web.Options().stores.ofUser, name) : std::nullopt;
    if (!packed) return false;
    const EntryIndex entries(*folder);
    for (std::size_t i = 0; i < packed->FileCount(); ++i) {
        const auto entry = entries.Find(packed->FileName(i));
        if (entry && entry->kind == EntryKind::kFile &&
            DigestOf(*folder, entry->name) != Digest(packed->FileBytes(i)))
            return true;
    }
    return false;
}

}  // namespace morpho
