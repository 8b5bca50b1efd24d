#include "web_host/save_repair.h"

#include "text/ignoring_case.h"
#include "web_host/page_update.h"
#include "web_host/save_changes.h"
#include "web_host/save_journal.h"
#include "web_host/save_locks.h"
#include "web_host/theme_of_web.h"

namespace morpho {

namespace {

// Earlier versions kept their journal in the web, where anybody may have written it.
constexpr std::string_view kEarlierJournal = ".morpho-change.tmp";

std::string Quoted(const std::string& text) {
    return "\"" + text + "\"";
}

class SaveRepair {
  public:
    SaveRepair(WebSession& web, SaveRecord record)
        : web_(web),
          journal_(web.TheDisk(), web.Options().stores.saves),
          record_(std::move(record)),
          changes_(web.TheDisk(), web.Files(), web.Options().stores, journal_, record_) {}

    std::string Run() {
        std::string completed;
        bool isDone = true;
        if (record_.hasEnded) {
            web_.Reports().Add("The program was stopped right after it had saved the theme " +
                               Quoted(record_.theme) + "; the save is complete.");
            completed = record_.theme;
        } else if (!IsOfThisWeb()) {
            isDone = RollBackForUser();
        } else if (!record_.isCommitted) {
            isDone = RollBack();
        } else if (Complete()) {
            completed = record_.theme;
        }
        changes_.Sweep();
        // What the disk did not allow now is tried again at the next start.
        if (isDone) journal_.Remove();
        return completed;
    }

  private:
    bool IsOfThisWeb() const { return record_.webId == web_.Files().Root().Id(); }

    // Another folder stands in the web's place now, or the web was copied.
    bool RollBackForUser() {
        record_.files.clear();
        record_.newThemeFolder.clear();
        const bool isDone = record_.isCommitted || changes_.RollBack();
        web_.Reports().Add("A save of the theme " + Quoted(record_.theme) +
                           " was interrupted in another folder that stood here; this web was left "
                           "as it is.");
        return isDone;
    }

    bool RollBack() {
        const bool isDone = changes_.RollBack();
        web_.Reports().Add("A save of the theme " + Quoted(record_.theme) +
                           " was interrupted; its changes were rolled back" +
                           (isDone ? "." : ", but not all of them could be."));
        return isDone;
    }

    bool Complete() {
        try {
            changes_.Complete();
        } catch (const RunTimeError& error) {
            changes_.RollBack();
            web_.Reports().Add("A save of the theme " + Quoted(record_.theme) +
                               " was interrupted and could not be completed; its changes were "
                               "rolled back. " +
                               error.what());
            return false;
        }
        changes_.RemoveEarlier();
        CompletePages();
        web_.Reports().Add("A save of the theme " + Quoted(record_.theme) +
                           " was interrupted; it has been completed.");
        return true;
    }

    void CompletePages() {
        if (record_.appliedTheme.empty()) return;
        // Whoever gave the web another theme meanwhile has had the last word.
        const std::string now = ThemeOfWeb(web_.Files().Root());
        if (!EqualIgnoringCase(now, record_.webTheme) &&
            !EqualIgnoringCase(now, record_.appliedTheme))
            return;
        PageUpdate pages(web_.Files(), record_.appliedTheme, record_.pages,
                         [this](const std::string& sentence) { web_.Reports().Add(sentence); });
        pages.Run(record_.program);
        pages.ReportKeptThemes();
        web_.SetThemeShown(pages.IsThemeShown());
    }

    WebSession& web_;
    SaveJournal journal_;
    SaveRecord record_;
    SaveChanges changes_;
};

void TellOfOthers(WebSession& web, const SaveJournal& journal) {
    for (const std::string& machine : journal.OtherMachines())
        web.Reports().Add("A save of this web did not end on the machine " + Quoted(machine) +
                          "; it is left to that machine.");
    const auto themes = web.Files().FindFolder({std::string(kThemesFolder)});
    if (themes && themes->Find(kEarlierJournal))
        web.Reports().Add(Quoted(themes->PathOf(kEarlierJournal)) +
                          " is the journal of an earlier version of this program, or of somebody "
                          "else. It is left alone; look at the web's themes before you delete it.");
}

// A program that was killed leaves the files of its locks. Taking the locks once removes them.
void RemoveLockFiles(const WebSession& web) {
    const auto themes = web.Files().FindFolder({std::string(kThemesFolder)});
    std::string holder;
    if (themes && themes->Find(kLockFile)) TryLockForSave(web, holder).Release();
}

// A save that has ended leaves its record until its program ends.
bool IsRunning(const WebSession& web, const SaveRecord& record) {
    return web.TheDisk().IsRunning(record.program);
}

std::string RepairOrTell(WebSession& web) {
    const SaveJournal journal(web.TheDisk(), web.Options().stores.saves);
    TellOfOthers(web, journal);
    const auto record = journal.Read();
    if (!record && web.Options().IsForSaving()) RemoveLockFiles(web);
    if (!record) return {};
    if (record->hasEnded && (!web.Options().IsForSaving() || IsRunning(web, *record))) return {};
    if (!web.Options().IsForSaving()) {
        web.Reports().Add("A save of the theme " + Quoted(record->theme) +
                          " is running, or was interrupted; the next save repairs that.");
        return {};
    }
    std::string holder;
    const SaveLocks locks = TryLockForSave(web, holder);
    // The save is still running: its program repairs nothing, and needs no repair.
    return locks.AreHeld() ? RepairWhileLocked(web) : std::string();
}

}  // namespace

std::string RepairWhileLocked(WebSession& web) {
    auto record = SaveJournal(web.TheDisk(), web.Options().stores.saves).Read();
    if (!record || (record->hasEnded && IsRunning(web, *record))) return {};
    return SaveRepair(web, std::move(*record)).Run();
}

void RemoveEndedRecord(const WebSession& web) {
    try {
        SaveJournal journal(web.TheDisk(), web.Options().stores.saves);
        std::string holder;
        const SaveLocks locks = TryLockForSave(web, holder);
        const auto record = locks.AreHeld() ? journal.Read() : std::nullopt;
        // By now it may be the record of another program's save.
        if (record && record->hasEnded && record->program == web.TheDisk().Program())
            journal.Remove();
    } catch (const RunTimeError&) {
        return;  // the next start tells that the save is complete
    }
}

std::string RepairSave(WebSession& web) {
    if (web.Options().stores.saves.empty()) return {};
    try {
        return RepairOrTell(web);
    } catch (const RunTimeError& error) {
        web.Reports().Add(error.what());
        return {};
    }
}

}  // namespace morpho
