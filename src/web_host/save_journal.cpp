#include "web_host/save_journal.h"

#include "platform/run_time_error.h"
#include "web_host/limits.h"
#include "web_host/web_files.h"

namespace morpho {

namespace {

constexpr std::string_view kJournal = ".journal";
constexpr std::string_view kCopies = ".earlier";

}  // namespace

std::string SaveJournal::JournalName() const {
    return disk_.Machine() + std::string(kJournal);
}

std::string SaveJournal::CopiesName() const {
    return disk_.Machine() + std::string(kCopies);
}

std::optional<SaveRecord> SaveJournal::Read() const {
    try {
        const auto folder = disk_.Open(path_);
        if (!folder->Find(JournalName())) return {};
        return ReadSaveRecord(ReadWholeFile(*folder, JournalName(), kMaxFileBytes));
    } catch (const RunTimeError& error) {
        // Without the folder no save has ever begun here.
        if (error.Number() == ErrorNumber::kPathNotFound) return {};
        throw;
    }
}

std::vector<std::string> SaveJournal::OtherMachines() const {
    std::vector<std::string> machines;
    try {
        for (const FolderEntry& entry : disk_.Open(path_)->Entries()) {
            if (entry.name.ends_with(kJournal) && entry.name != JournalName())
                machines.push_back(entry.name.substr(0, entry.name.size() - kJournal.size()));
        }
    } catch (const RunTimeError&) {
        machines.clear();
    }
    return machines;
}

void SaveJournal::Write(const SaveRecord& record, Durability durability) {
    const auto folder = disk_.OpenOrCreate(path_);
    WriteWholeFile(*folder, JournalName(), FormatSaveRecord(record), durability);
    if (durability == Durability::kFlushed) folder->Flush({});
}

std::unique_ptr<Folder> SaveJournal::Copies() {
    const auto folder = disk_.OpenOrCreate(path_);
    return folder->Find(CopiesName()) ? folder->Open(CopiesName()) : folder->Create(CopiesName());
}

void SaveJournal::RemoveCopies() {
    const auto folder = disk_.OpenOrCreate(path_);
    if (folder->Find(CopiesName())) folder->RemoveFolder(CopiesName());
}

void SaveJournal::Remove() {
    const auto folder = disk_.OpenOrCreate(path_);
    // The record goes first: without it the copies mean nothing.
    if (folder->Find(JournalName())) folder->Remove(JournalName());
    RemoveCopies();
    for (const FolderEntry& entry : folder->Entries()) {
        if (entry.kind == EntryKind::kFile && IsTemporaryName(entry.name))
            folder->Remove(entry.name);
    }
}

}  // namespace morpho
