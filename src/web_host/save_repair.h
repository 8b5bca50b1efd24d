#pragma once

#include <string>

#include "web_host/web_session.h"

namespace morpho {

// Looks for a save of this web that was killed, and repairs it where the web is opened for saving:
// one that was not committed is rolled back, a committed one completed. Only what the journal in
// the user's data proves is touched; whatever the web itself says of saves is told and left alone.
// Where the web is not opened for saving nothing is changed. What happened is reported.
//
// Returns the theme whose save was completed; empty for none. Never throws.
std::string RepairSave(WebSession& web);

// The same while the caller holds the locks of a save. Throws RunTimeError.
std::string RepairWhileLocked(WebSession& web);

// Removes the record of this program's last save, which has ended. Never throws.
void RemoveEndedRecord(const WebSession& web);

}  // namespace morpho
