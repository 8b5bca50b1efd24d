#pragma once

#include <string>

#include "formats/registry_data.h"

namespace morpho {

// Folders of the machine that the host and the editors look up in the registry; Windows paths
// without a trailing "\".
struct MachineFolders {
    std::string cache;        // what the host unpacks and downloads
    std::string appData;      // settings and themes of the user
    std::string desktop;      // the user's desktop
    std::string commonFiles;  // "Microsoft Shared" in it has the themes installed for all users
    std::string program;      // the host's own program folder
};

// The registry keys that describe a machine on which this release of the host is installed.
RegistryData DescribeMachine(const MachineFolders& folders, std::string_view hostVersion);

}  // namespace morpho
