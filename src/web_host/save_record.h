#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/theme_mark.h"
#include "web_host/disk.h"

namespace morpho {

// What a save is doing, as kept on disk while it runs, so that the next start can roll a killed
// save back, or complete it. Names are those of folders and files, not paths.
struct SaveRecord {
    // A file of a theme that the web has. Digests are empty for a file that is not there.
    struct ThemeFile {
        std::string theme;
        std::string name;
        std::string temporaryName;  // the new contents, until the save is committed
        std::string earlierName;    // the earlier contents; empty when there were none
        std::string digestBefore;
        std::string digestAfter;
    };

    // Who: a program of a machine.
    std::string machine;
    std::uint64_t program = 0;
    // Where: the web's folder. The journal's own folder belongs to its path.
    FolderId webId;
    std::string webTheme;  // the theme that the web as a whole used before; empty: none

    std::string theme;              // the theme that is saved or applied
    bool changesUserTheme = false;  // it is saved among the user's own themes
    bool userHadTheme = false;      // the user had it before; copies of its files are kept
    std::string newThemeFolder;     // temporary name of its folder in the web, when that is new
    std::vector<ThemeFile> files;   // what is replaced in a theme of the web
    bool isCommitted = false;       // from here on it is completed, not rolled back
    std::string appliedTheme;       // the theme that pages get; empty: none
    PageChoice pages;               // which pages get it
    // The save is complete. Its record stays until its program ends, so that a program killed
    // right after the save is not taken for one that has saved nothing.
    bool hasEnded = false;
};

// The record as text, a line for each value. Every version of a record replaces the file as a
// whole.
std::string FormatSaveRecord(const SaveRecord& record);
// Nothing for a text that is no whole record.
std::optional<SaveRecord> ReadSaveRecord(std::string_view text);

}  // namespace morpho
