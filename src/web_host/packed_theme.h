#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "formats/theme_package.h"
#include "web_host/disk.h"

namespace morpho {

// A theme as installed in a folder of themes: its description "<name>.inf" and its package
// "<name>.elm". The package's members are read one at a time, so that memory does not grow with the
// theme.
class PackedTheme {
  public:
    // Nothing when the theme is not there, or not complete. Throws RunTimeError for a package that
    // contradicts itself, or is too large.
    static std::optional<PackedTheme> Find(const Folder& themes, const std::string& name);

    // The files that make up the theme in a web: the members, and last the description, which
    // makes a folder a theme.
    std::size_t FileCount() const { return members_.size() + 1; }
    std::string FileName(std::size_t index) const;
    // Style sheets come without addresses of other themes' folders. Throws RunTimeError for a
    // member without its marker.
    std::string FileBytes(std::size_t index) const;

  private:
    struct Member {
        std::string name;  // UTF-8, a plain file name
        std::uint64_t offset = 0;
        std::uint64_t length = 0;
    };

    PackedTheme() = default;
    void ReadMembers();
    bool HasMember(const std::string& name) const;

    std::string descriptionName_;
    std::string description_;
    std::shared_ptr<const ReadableFile> package_;
    std::vector<Member> members_;
    std::vector<std::string> names_;  // of the files, folded, sorted
};

// Installs the theme in `theme` as "<name>.inf" and "<name>.elm" in the folder `installed`. What is
// there already is not written again. Files whose names no package can hold are left out. Throws
// RunTimeError.
void PackTheme(const Folder& theme, const std::string& descriptionName,
               const std::vector<PackedFile>& files, const std::string& name, Folder& installed);

}  // namespace morpho
