#pragma once

// The DesktopSystem of the system that the tests run on.
#ifdef _WIN32
#include "windows_program/windows_desktop.h"
namespace morpho {
using ThisSystem = WindowsDesktop;
}  // namespace morpho
#else
#include "program/linux_system.h"
namespace morpho {
using ThisSystem = LinuxSystem;
}  // namespace morpho
#endif
