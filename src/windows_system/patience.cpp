#include "windows_system/patience.h"

#include "windows_system/win32.h"

namespace morpho {

namespace {

// Half a second in all.
constexpr DWORD kPauses[] = {1, 4, 15, 30, 50, 100, 100, 100, 100};

// Replacing a file that another program has open is refused as "access denied".
bool MayPass(DWORD code) {
    return code == ERROR_SHARING_VIOLATION || code == ERROR_LOCK_VIOLATION ||
           code == ERROR_ACCESS_DENIED || code == ERROR_USER_MAPPED_FILE;
}

}  // namespace

bool TryWithPatience(const std::function<bool()>& attempt) {
    for (const DWORD pause : kPauses) {
        if (attempt()) return true;
        if (!MayPass(::GetLastError())) return false;
        ::Sleep(pause);
    }
    return attempt();
}

}  // namespace morpho
