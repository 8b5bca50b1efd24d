#include "desktop/folder_entries.h"

namespace morpho {

namespace fs = std::filesystem;

std::vector<fs::directory_entry> EntriesBelow(const fs::path& folder) {
    std::vector<fs::directory_entry> entries;
    for (const auto& entry :
         fs::recursive_directory_iterator(folder, fs::directory_options::skip_permission_denied)) {
        std::error_code ignored;
        const fs::file_type type = entry.symlink_status(ignored).type();
        if (type == fs::file_type::directory || type == fs::file_type::regular)
            entries.push_back(entry);
    }
    return entries;
}

}  // namespace morpho
