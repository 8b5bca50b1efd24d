#pragma once

#include <memory>
#include <string>

#include "web_host/disk.h"
#include "windows_system/held_folder.h"

namespace morpho {

// See Folder::TryLock. The lock keeps `folder`, in which the file of this full path is. The file
// holds one line that names the program, for people; nothing is ever concluded from it.
std::unique_ptr<FolderLock> TryLockFile(std::shared_ptr<HeldFolder> folder,
                                        const std::wstring& path, std::string& holder);

}  // namespace morpho
