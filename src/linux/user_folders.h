#pragma once

#include <functional>
#include <string>

namespace morpho {

// The program's folders in the user's home, as paths of the disk, in the XDG base directories.
// They need not exist yet.
struct UserFolders {
    std::string home;
    std::string cache;  // $XDG_CACHE_HOME/morpho
    std::string data;   // $XDG_DATA_HOME/morpho
};

// `variable` gives the value of an environment variable; empty when it is not set. Throws
// RunTimeError when the home folder is not known.
UserFolders FindUserFolders(const std::function<std::string(const char*)>& variable);

// The environment of this process.
std::string EnvironmentVariable(const char* name);

}  // namespace morpho
