#pragma once

#include <string>

#ifdef _WIN32
#include "windows_system/windows_disk.h"
#include "windows_system/windows_file_system.h"
#else
#include "linux/disk_file_system.h"
#include "linux/disk_path.h"
#include "linux/linux_disk.h"
#endif

namespace morpho::test {

// The disk and the files of the computer that a test runs on.
#ifdef _WIN32
using RealDisk = WindowsDisk;
using RealFileSystem = WindowsFileSystem;
inline constexpr bool kIsWindows = true;
// The Windows path of a path of the system's own, as TemporaryFolder gives it.
inline std::string WindowsPath(const std::string& path) {
    return path;
}
#else
using RealDisk = LinuxDisk;
using RealFileSystem = DiskFileSystem;
inline constexpr bool kIsWindows = false;
inline std::string WindowsPath(const std::string& path) {
    return ToWindowsPath(path);
}
#endif

}  // namespace morpho::test
