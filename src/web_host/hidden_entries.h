#pragma once

#include "web_host/web_files.h"

namespace morpho {

// Whether the host hides an entry of the web: its own folders ("_vti_cnf", "_themes", "_derived")
// and names that begin with a full stop. "_private" is the user's own.
bool IsHiddenEntry(const FolderEntry& entry);

// Whether a list of the web's folders and files has the entry: links are in none, nor is what a
// save is writing.
bool IsShownEntry(const FolderEntry& entry, bool showsHidden);

// Whether the web's settings ("vti_showhiddenpages") show what is hidden.
bool ShowsHiddenEntries(const WebFiles& web);

}  // namespace morpho
