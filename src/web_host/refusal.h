#pragma once

#include <string>

#include "platform/run_time_error.h"

namespace morpho {

// Ends a call of the host's objects that makes no sense; `sentence` says why.
[[noreturn]] inline void RefuseCall(const std::string& sentence) {
    throw RunTimeError(ErrorNumber::kAutomation, sentence);
}

}  // namespace morpho
