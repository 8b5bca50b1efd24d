#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/run_time_error.h"

namespace morpho {

// A file that is to be replaced, and what became of it.
struct FileChange {
    std::string path;  // of the disk
    std::string bytes;
    bool isDone = false;
    std::optional<RunTimeError> failure = {};
};

// How a web on disk is changed: every step of it goes through here. Paths of the disk; what fails
// throws RunTimeError naming the file.
class WebWriter {
  public:
    virtual ~WebWriter() = default;
    // Replaces the file as a whole, or creates it, and flushes it; a link is replaced, not
    // followed.
    virtual void ReplaceFile(const std::string& path, std::string_view bytes);
    // The same for several files, which takes less time: ReplaceFile is called from several
    // threads. A failure is kept with its file, and the others are replaced.
    void ReplaceFiles(std::vector<FileChange>& changes);
    // Writes a file of a name that is free, as a whole; the next Flush flushes it.
    virtual void AddFile(const std::string& path, std::string_view bytes);
    // Called before anything is written that relies on files that were added.
    virtual void Flush();
    virtual void RemoveFile(const std::string& path);
    // Its parent must exist, and nothing of this name.
    virtual void MakeFolder(const std::string& path);
    // With all contents; links in it are removed, never followed.
    virtual void RemoveFolder(const std::string& path);

  private:
    std::vector<std::string> unflushed_;
};

}  // namespace morpho
