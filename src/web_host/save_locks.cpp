#include "web_host/save_locks.h"

namespace morpho {

SaveLocks TryLockForSave(const WebSession& web, std::string& holder) {
    SaveLocks locks;
    const auto themes = web.Files().OpenFolder({std::string(kThemesFolder)});
    locks.web = themes->TryLock(kLockFile, holder);
    if (!locks.web) return {};
    const std::string& ofUser = web.Options().stores.ofUser;
    if (ofUser.empty()) return locks;
    locks.user = web.TheDisk().OpenOrCreate(ofUser)->TryLock(kLockFile, holder);
    return locks.user ? std::move(locks) : SaveLocks();
}

}  // namespace morpho
