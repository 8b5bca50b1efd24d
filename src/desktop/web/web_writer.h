#pragma once

#include <string>
#include <string_view>

namespace morpho {

// How a web on disk is changed: every step of it goes through here. Paths of the disk; what fails
// throws RunTimeError naming the file.
class WebWriter {
  public:
    virtual ~WebWriter() = default;
    // Replaces the file as a whole, or creates it, and flushes it; a link is replaced, not
    // followed.
    virtual void ReplaceFile(const std::string& path, std::string_view bytes);
    virtual void RemoveFile(const std::string& path);
    // Its parent must exist, and nothing of this name.
    virtual void MakeFolder(const std::string& path);
    // With all contents; links in it are removed, never followed.
    virtual void RemoveFolder(const std::string& path);
};

}  // namespace morpho
