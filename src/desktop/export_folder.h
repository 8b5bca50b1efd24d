#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "desktop/desktop_system.h"

namespace morpho {

// The folder that a batch exports to: it gets all files or none.
class ExportFolder {
  public:
    // Throws CommandError unless `folder` is empty, or missing in a folder that exists.
    ExportFolder(const DesktopSystem& system, const std::filesystem::path& folder);

    // Copies the files of `source` there, as a whole; `program` is the number of the running one. A
    // folder that exists stays the same one, with its owner and mode. Throws CommandError, and
    // leaves nothing behind, when that fails.
    void Fill(const std::filesystem::path& source, std::uint64_t program) const;
    // What Fill would write, one line for a file.
    std::string WouldFill(const std::filesystem::path& source) const;

  private:
    std::filesystem::path folder_;
    bool exists_ = false;
};

}  // namespace morpho
