#pragma once

#include <string>
#include <vector>

#include "platform/code_page.h"
#include "platform/file_system.h"
#include "platform/profile_files.h"

namespace morpho::test {

// Profile files on a file system, which a test can look into. It remembers what was flushed.
class FakeProfileFiles : public ProfileFiles {
  public:
    FakeProfileFiles(FileSystem& files, const CodePage& codePage)
        : files_(files), codePage_(codePage) {}

    const std::vector<std::string>& Flushed() const { return flushed_; }

    std::string ReadString(std::string_view file, std::string_view section, std::string_view key,
                           std::string_view fallback, std::size_t maxChars) const override;
    void WriteString(std::string_view file, std::string_view section, std::string_view key,
                     std::string_view value) override;
    void WriteSection(std::string_view file, std::string_view section,
                      const std::vector<std::pair<std::string, std::string>>& entries) override;
    void Flush(std::string_view file) override { flushed_.emplace_back(file); }

  private:
    using Lines = std::vector<std::string>;
    Lines Read(std::string_view file) const;
    void Write(std::string_view file, const Lines& lines);

    FileSystem& files_;
    const CodePage& codePage_;
    std::vector<std::string> flushed_;
};

}  // namespace morpho::test
