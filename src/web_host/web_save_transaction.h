#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/front_page.h"
#include "web_host/packed_theme.h"
#include "web_host/save_changes.h"
#include "web_host/save_journal.h"
#include "web_host/save_locks.h"
#include "web_host/web_session.h"

namespace morpho {

class EntryIndex;

// A save of a theme in a web folder. From the beginning to the end it holds the locks of the web
// and of the user's themes, so that one program at a time saves there. What it changes in the web
// waits under temporary names:
//
//     begin      lock; write the record of what is there to the journal
//     collect    a new theme's folder, and new contents of a theme's files, under temporary names
//     commit     flush them; mark the record as committed; give them their names; then the pages
//     end        remove earlier contents; mark the record as ended; unlock
//
// Without a commit everything is rolled back, the user's themes included. After a kill the next
// start reads the journal: a save that was not committed is rolled back, another one completed (see
// save_repair.h).
class WebSaveTransaction : public SaveTransaction {
  public:
    // A theme that is only applied leaves the user's themes alone.
    enum class Purpose { kSave, kApply };

    // `web` must outlive it. Throws RunTimeError when another program saves here, or the journal
    // cannot be written.
    WebSaveTransaction(WebSession& web, const std::string& theme, Purpose purpose);
    ~WebSaveTransaction() override;
    WebSaveTransaction(const WebSaveTransaction&) = delete;
    WebSaveTransaction& operator=(const WebSaveTransaction&) = delete;

    // Makes a folder for a theme that the web does not have; it is found by its name from now on.
    void CreateTheme(const std::string& name);
    // Whether the folder of this theme was made by this save.
    bool HasCreated(const std::string& name) const;
    // Removes that folder again.
    void DropTheme();
    // Replaces, or adds, a file of a theme that the web has, with Commit.
    void ReplaceThemeFile(const std::string& theme, const std::string& name,
                          const std::string& bytes);
    // Puts the theme into the web (the user's own of this name, else the one installed for all
    // users, else the one that the web has), and gives it to the pages with Commit. Throws
    // RunTimeError when there is no such theme or its package cannot be trusted.
    void ApplyTheme(const std::string& name);
    // Gives it to these pages instead of those that take the web's theme.
    void ChoosePages(const PageChoice& pages) { record_.pages = pages; }

    void RefreshAtCommit() { refreshes_ = true; }
    void RecalcAtCommit() { recalculates_ = true; }

    void Commit() override;

  private:
    void Lock();
    void ProtectUserTheme();
    void WriteRecord(Durability durability) { journal_.Write(record_, durability); }
    // How a file of a theme in the web changes; nothing when it holds these bytes already.
    std::optional<SaveRecord::ThemeFile> PlannedChange(const EntryIndex& entries,
                                                       const std::string& theme,
                                                       const std::string& name,
                                                       const std::string& bytes) const;
    // Writes the new contents under their temporary name. The record must know the file by then.
    static void WriteTemporary(Folder& folder, const SaveRecord::ThemeFile& file,
                               const std::string& bytes);
    void ReplaceWithPacked(const PackedTheme& packed, const std::string& theme, Folder& folder);
    static void FillWithPacked(const PackedTheme& packed, Folder& folder);
    void RollBack();
    void CommitAll();
    void UpdatePages();
    bool KeepsThemeOfWeb() const;
    void End();
    void EndJournal();

    WebSession& web_;
    SaveJournal journal_;
    SaveRecord record_;
    SaveChanges changes_;
    SaveLocks locks_;
    bool createdThemesFolder_ = false;
    bool refreshes_ = false;
    bool recalculates_ = false;
    bool hasEnded_ = false;
    bool isRolledBack_ = true;  // nothing of a save that was not committed is left
};

// Whether the user has a theme of this name that differs from the one that the web has: applying it
// would overwrite the web's own. Throws RunTimeError for a package that cannot be trusted.
bool ReplacesThemeOfWeb(const WebSession& web, const std::string& name);

}  // namespace morpho
