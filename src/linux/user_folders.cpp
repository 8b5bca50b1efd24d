#include "linux/user_folders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

#include "linux/disk_path.h"
#include "platform/run_time_error.h"

namespace morpho {

namespace {

std::string HomeOfUser() {
    const passwd* entry = ::getpwuid(::geteuid());
    return entry && entry->pw_dir ? entry->pw_dir : "";
}

}  // namespace

UserFolders FindUserFolders(const std::function<std::string(const char*)>& variable) {
    UserFolders folders;
    folders.home = variable("HOME");
    if (!folders.home.starts_with('/')) folders.home = HomeOfUser();
    if (!folders.home.starts_with('/'))
        throw RunTimeError(ErrorNumber::kPathNotFound, "The user's home folder is not known.");
    const auto below = [&](const char* name, const char* usual) {
        // A relative path there is to be ignored.
        std::string base = variable(name);
        if (!base.starts_with('/')) base = JoinDiskPath(folders.home, usual);
        return JoinDiskPath(base, "morpho");
    };
    folders.cache = below("XDG_CACHE_HOME", ".cache");
    folders.data = below("XDG_DATA_HOME", ".local/share");
    return folders;
}

std::string EnvironmentVariable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

}  // namespace morpho
