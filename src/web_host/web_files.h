#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/run_time_error.h"
#include "web_host/disk.h"

namespace morpho {

// The names that lead from the web's own folder to one of its folders or files.
using WebPath = std::vector<std::string>;

inline constexpr std::string_view kThemesFolder = "_themes";

// The folders and files of an open web. Everything is reached from the web's own folder, which
// stays open, so that nothing in the web leads outside.
class WebFiles {
  public:
    // `path` is a Windows path. Throws RunTimeError when the folder cannot be opened.
    WebFiles(Disk& disk, std::string path);

    const std::string& Path() const { return path_; }
    Folder& Root() const { return *root_; }
    // The web's absolute address, "file:///Z:/home/ann/web".
    std::string Url() const;

    // The address of what these names lead to, spelled like the web's own: nothing is escaped.
    std::string UrlOf(const WebPath& names) const;

    // The names in an address, absolute or relative to the web ("_themes/blends"); nothing for what
    // leads out of the web.
    std::optional<WebPath> PathOfUrl(std::string_view url) const;
    // The names, as spelled on the disk, that lead to the folder or file at an address. Each name
    // of the address is looked for as it stands, and then with its escapes ("%20") resolved.
    // Nothing when the web has no such entry of this kind.
    std::optional<WebPath> Find(std::string_view url, EntryKind kind) const;
    // The folder at these names, without regard to case; null when there is none, or a link or a
    // file on the way.
    std::unique_ptr<Folder> FindFolder(const WebPath& names) const;
    // The same for a folder that must be there: throws RunTimeError. Another program may take it
    // away at any time.
    std::unique_ptr<Folder> OpenFolder(const WebPath& names) const;

    // While a theme is being made its folder has a temporary name: from now on `name` below
    // "_themes" leads there. An empty name ends that.
    void RedirectTheme(std::string name, std::string temporaryName);

  private:
    std::optional<std::string> SpelledName(const WebPath& parent, const std::string& name,
                                           EntryKind kind) const;

    std::string path_;
    std::unique_ptr<Folder> root_;
    std::string redirectedTheme_;  // folded for comparing; empty: none
    std::string temporaryName_;
};

// All bytes of a file of the folder; throws RunTimeError for one that is larger.
std::string ReadWholeFile(const Folder& folder, std::string_view name, std::uint64_t maxBytes);

// Replaces the file of this name by these bytes.
void WriteWholeFile(Folder& folder, std::string_view name, std::string_view bytes,
                    Durability durability);

// The error for an entry of a folder: `"/home/ann/web/x.gif" was left out: it is too large.`
RunTimeError EntryError(ErrorNumber number, const Folder& folder, std::string_view name,
                        std::string_view failure, std::string_view reason);

}  // namespace morpho
