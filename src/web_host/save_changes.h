#pragma once

#include <memory>
#include <string>

#include "web_host/save_journal.h"
#include "web_host/theme_stores.h"
#include "web_host/web_files.h"

namespace morpho {

// The changes that a save makes to the themes of a web and of the user, as its record tells them.
// The save itself and the next start after a killed one go through the same steps. Only what the
// record proves to be the save's own is removed or replaced.
class SaveChanges {
  public:
    SaveChanges(Disk& disk, const WebFiles& web, const ThemeStores& stores, SaveJournal& journal,
                const SaveRecord& record)
        : disk_(disk), web_(web), stores_(stores), journal_(journal), record_(record) {}

    // Hands the new contents over to the disk. Throws RunTimeError.
    void Flush();
    // Gives the new contents their names; what has them already stays. A file that another program
    // has changed since the save began is refused. Throws RunTimeError; call RollBack then.
    void Complete();
    // Removes what is left of the earlier contents. False when some could not be removed.
    bool RemoveEarlier();
    // Makes the themes of web and user what they were, as far as the disk allows. False when
    // something could not be rolled back.
    bool RollBack();
    // Removes temporary files that the save's program, now dead, left in the themes' folders.
    void Sweep();

  private:
    void CompleteNewTheme();
    void CompleteFile(Folder& folder, const SaveRecord::ThemeFile& file);
    void RollBackFile(Folder& folder, const SaveRecord::ThemeFile& file);
    void RemoveNewTheme();
    void RestoreUserTheme();
    void RemoveUserTheme(Folder& themes);
    std::unique_ptr<Folder> ThemeFolder(const std::string& theme) const;

    Disk& disk_;
    const WebFiles& web_;
    const ThemeStores& stores_;
    SaveJournal& journal_;
    const SaveRecord& record_;
};

// The digest of a file's bytes; empty when there is no such file.
std::string DigestOf(const Folder& folder, const std::string& name);

}  // namespace morpho
