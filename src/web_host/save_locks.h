#pragma once

#include <memory>

#include "web_host/web_session.h"

namespace morpho {

// The locks of a save: one on the web, which other users and machines may share, and one on the
// user's themes, which all webs of the user share.
struct SaveLocks {
    std::unique_ptr<FolderLock> web;
    std::unique_ptr<FolderLock> user;

    bool AreHeld() const { return web != nullptr; }
    // The web's goes last, so that its file tells of a program that was killed here, too.
    void Release() {
        user.reset();
        web.reset();
    }
};

// The file that is locked, in "_themes" and among the user's themes. It means nothing otherwise.
inline constexpr std::string_view kLockFile = ".morpho-lock.tmp";

// Takes both locks. While another program holds one: none, and `holder` is what it says of itself.
// The web's "_themes" must exist. Throws RunTimeError when a lock cannot be had for another reason.
SaveLocks TryLockForSave(const WebSession& web, std::string& holder);

}  // namespace morpho
