#pragma once

#include <optional>
#include <string>

#include "linux/descriptor.h"

namespace morpho {

// What a program is doing to the themes of a web.
struct ThemeChange {
    enum class Kind {
        kMaking,    // fills the folder of a theme that is new; no page uses it yet
        kApplying,  // gives an installed theme to the web, its folder and pages
    };
    Kind kind = Kind::kMaking;
    std::string theme;  // its folder's name on the disk
};

// A file in the web that says what this program is doing to its themes, for as long as it does.
// What a program that died has begun can so be put right, and no two programs do it at once: the
// file is locked by whoever is at it, and a lock ends with its program.
class ThemeChangeNote {
  public:
    ThemeChangeNote() = default;
    ~ThemeChangeNote() { Release(); }
    ThemeChangeNote(const ThemeChangeNote&) = delete;
    ThemeChangeNote& operator=(const ThemeChangeNote&) = delete;

    // Says so in the folder "_themes", a path of the disk, in place of what was said before. Throws
    // RunTimeError while another program is at it. Where the folder cannot be written there is no
    // note; whoever wants to write there will fail by itself.
    void Hold(const std::string& themesFolder, const ThemeChange& change);
    // Takes the file away again, if it is held.
    void Release();
    // Lets go of the file and leaves it where it is.
    void Leave() { file_.Close(); }
    // Holds the note that a program which died has left, and says what it was doing. Nothing when
    // there is none, when its program is at it, or when it was not written to its end.
    std::optional<ThemeChange> TakeOver(const std::string& themesFolder);

  private:
    bool Open(const std::string& path, int flags);

    std::string path_;
    Descriptor file_;  // open, and locked, while the note is held
};

}  // namespace morpho
