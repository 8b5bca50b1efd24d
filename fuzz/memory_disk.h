#pragma once

#include <cstdlib>

#include "support/temporary_folder.h"

// Has temporary folders made in memory, where the system has a disk there: a target makes hundreds
// of folders a second, and each save waits for the disk.
inline void UseMemoryDisk() {
    if (std::filesystem::is_directory("/dev/shm")) ::setenv("TMPDIR", "/dev/shm", 0);
}
