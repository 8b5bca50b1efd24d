#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "web_host/disk.h"
#include "web_host/save_record.h"

namespace morpho {

// The record of the save that runs in a web, or was killed there, and copies of the user's files
// that it replaces. It is kept in the user's data: whoever sends or shares a web cannot put words
// into it.
class SaveJournal {
  public:
    // `path` is a Windows path, ThemeStores::saves.
    SaveJournal(Disk& disk, std::string path) : disk_(disk), path_(std::move(path)) {}

    // The record of a save that did not end; nothing when there is none. Throws RunTimeError when
    // it cannot be read.
    std::optional<SaveRecord> Read() const;
    // The machines, other than this one, on which a save of this web did not end: the user's data
    // may lie on a disk that several machines share. Each has a journal of its own.
    std::vector<std::string> OtherMachines() const;
    // Replaces the record; with kFlushed it outlives a power failure.
    void Write(const SaveRecord& record, Durability durability);
    // The folder for the copies, created when it is missing.
    std::unique_ptr<Folder> Copies();
    void RemoveCopies();
    // Removes record and copies.
    void Remove();

  private:
    std::string JournalName() const;
    std::string CopiesName() const;

    Disk& disk_;
    std::string path_;
};

}  // namespace morpho
