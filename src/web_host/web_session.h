#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "linux/disk_folder.h"
#include "web_host/opened_web.h"
#include "web_host/theme_change_note.h"
#include "web_host/web_writer.h"

namespace morpho {

// Where themes are installed, as paths of the disk: folders with a folder for each theme. Empty
// where there are none.
struct ThemeStores {
    std::string ofUser;  // the user's own, the same for all webs
    std::string forWeb;  // those for all users, as far as this web is concerned
};

// A web that is open, shared by the objects that show it.
struct WebSession {
    OpenedWeb opened;
    std::string unpackFolder;
    std::optional<std::string> onlyTheme;  // see OpenWebFolder
    ThemeStores stores;
    std::shared_ptr<WebWriter> writer;
    ThemeChangeNote changeNote;
    std::function<void(std::string_view)> log;
    std::vector<std::string> reports;  // what went wrong with single pages, a sentence each
    std::string completedTheme;  // applied at opening, as a program had died over it; or empty
    bool isShown = false;        // whether a page takes the theme that was last applied

    // The web's own folder.
    DiskFolder Root() const { return DiskFolder::Open(opened.folder, true); }
    // The web's absolute address, "file:///Z:/home/ann/web".
    std::string Url() const;
    void Log(std::string_view line) const;
    // Keeps the sentence for the caller, and logs it.
    void Report(const std::string& sentence);
};

// The names that lead to an entry of the web, from an absolute address or one relative to the web
// ("_themes/blends"); names of the disk, as spelled. Nothing for what leads out of the web.
std::optional<std::vector<std::string>> NamesInWeb(const WebSession& web, std::string_view url);

// The folder that these names lead to from the web's own; nothing when there is none, or a link on
// the way.
std::optional<DiskFolder> FindFolderInWeb(const WebSession& web,
                                          const std::vector<std::string>& names);

// Removes what a program that died while it wrote has left in the folder, as far as possible.
void RemoveAbandoned(const WebSession& web, const DiskFolder& folder);

// Calls `take` with the folder, its address relative to the web ("gallery/" or empty) and the name
// of each page of the web, in all its folders but those of the host ("_themes", "_vti_..."), hidden
// ones and other webs. Links are not followed. A folder that cannot be read is reported.
void VisitPages(WebSession& web,
                const std::function<void(const DiskFolder& folder, const std::string& url,
                                         const std::string& name)>& take);

// Lists the web's themes again and unpacks those that are not unpacked yet.
void RefreshThemes(WebSession& web);

// Lists the web's themes again and unpacks this one anew; false when the web does not have it.
bool MakeThemeFresh(WebSession& web, const std::string& name);

// The bytes of a file in a web; throws RunTimeError for one that is larger than any web's file.
std::string ReadWebFile(const DiskFolder& folder, const std::string& name);

}  // namespace morpho
