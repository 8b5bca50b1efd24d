#include "windows_system/windows_clock.h"

#include "windows_system/win32.h"

namespace morpho {

LocalTime WindowsClock::Now() const {
    SYSTEMTIME now = {};
    ::GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

}  // namespace morpho
