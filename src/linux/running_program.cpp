#include "linux/running_program.h"

#include <signal.h>  // NOLINT(modernize-deprecated-headers): kill() is not in <csignal>

#include <cerrno>
#include <fstream>
#include <limits>
#include <string>

namespace morpho {

bool IsProgramRunning(std::uint64_t program) {
    if (program == 0 || program > std::numeric_limits<pid_t>::max()) return false;
    if (::kill(static_cast<pid_t>(program), 0) != 0 && errno == ESRCH) return false;
    // A program that has ended is listed as a zombie until its parent has asked for its status.
    std::string status;
    std::getline(std::ifstream("/proc/" + std::to_string(program) + "/stat"), status);
    const std::size_t state = status.rfind(") ");
    return state == status.npos || !status.substr(state).starts_with(") Z");
}

}  // namespace morpho
