#pragma once

#include "platform/code_page.h"
#include "platform/file_system.h"
#include "platform/profile_files.h"

namespace morpho {

// Profile files kept through a file system, with texts in a code page. Every write replaces the
// whole file, so there is nothing left to flush.
class DiskProfileFiles : public ProfileFiles {
  public:
    DiskProfileFiles(FileSystem& files, const CodePage& codePage)
        : files_(files), codePage_(codePage) {}

    std::string ReadString(std::string_view file, std::string_view section, std::string_view key,
                           std::string_view fallback, std::size_t maxChars) const override;
    void WriteString(std::string_view file, std::string_view section, std::string_view key,
                     std::string_view value) override;
    void WriteSection(std::string_view file, std::string_view section,
                      const std::vector<std::pair<std::string, std::string>>& entries) override;
    void Flush(std::string_view file) override;

  private:
    std::string BytesOf(std::string_view file) const;

    FileSystem& files_;
    const CodePage& codePage_;
};

}  // namespace morpho
