#include "web_host/web_files.h"

#include <algorithm>

#include "formats/web_text.h"
#include "text/ignoring_case.h"
#include "web_host/limits.h"

namespace morpho {

namespace {

// The names between "/" or "\".
WebPath NamesIn(std::string_view path) {
    WebPath names;
    while (!path.empty()) {
        const std::string name(path.substr(0, path.find_first_of("/\\")));
        path.remove_prefix(std::min(name.size() + 1, path.size()));
        if (!name.empty() && name != ".") names.push_back(name);
    }
    return names;
}

// Whether a name can be that of an entry of a folder.
bool IsPlainName(const std::string& name) {
    return !name.empty() && name != "." && name != ".." &&
           name.find_first_of(std::string_view("/\\\0", 3)) == name.npos;
}

// Whether the address calls the entry `own` by this name.
bool IsNameInAddress(const std::string& own, const std::string& name) {
    return EqualIgnoringCase(own, name) || EqualIgnoringCase(own, DecodedPercents(name));
}

}  // namespace

WebFiles::WebFiles(Disk& disk, std::string path)
    : path_(std::move(path)), root_(disk.Open(path_)) {}

std::string WebFiles::Url() const {
    std::string url = "file:///" + path_;
    std::replace(url.begin(), url.end(), '\\', '/');
    return url;
}

std::string WebFiles::UrlOf(const WebPath& names) const {
    std::string url = Url();
    for (const std::string& name : names)
        url += '/' + name;
    return url;
}

std::optional<WebPath> WebFiles::PathOfUrl(std::string_view url) const {
    WebPath names = NamesIn(url);
    if (StartsWithIgnoringAsciiCase(url, "file:")) {
        const WebPath own = NamesIn(Url());
        if (names.size() < own.size() ||
            !std::equal(own.begin(), own.end(), names.begin(), IsNameInAddress))
            return {};
        names.erase(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(own.size()));
    }
    if (!std::all_of(names.begin(), names.end(), IsPlainName)) return {};
    return names;
}

std::optional<WebPath> WebFiles::Find(std::string_view url, EntryKind kind) const {
    const auto names = PathOfUrl(url);
    if (!names || (names->empty() && kind != EntryKind::kFolder)) return {};
    WebPath found;
    for (std::size_t i = 0; i < names->size(); ++i) {
        const bool isLast = i + 1 == names->size();
        auto name = SpelledName(found, (*names)[i], isLast ? kind : EntryKind::kFolder);
        if (!name) return {};
        found.push_back(std::move(*name));
    }
    return found;
}

std::optional<std::string> WebFiles::SpelledName(const WebPath& parent, const std::string& name,
                                                 EntryKind kind) const {
    const auto folder = FindFolder(parent);
    for (const std::string& spelling : {name, DecodedPercents(name)}) {
        if (!folder || !IsPlainName(spelling)) continue;
        const auto entry = folder->Find(spelling);
        if (entry && entry->kind == kind) return entry->name;
        // The folder of a theme that is being saved has no entry of its name yet.
        WebPath inner = parent;
        inner.push_back(spelling);
        if (kind == EntryKind::kFolder && FindFolder(inner)) return spelling;
    }
    return {};
}

std::unique_ptr<Folder> WebFiles::FindFolder(const WebPath& names) const {
    std::unique_ptr<Folder> folder = root_->OpenAgain();
    for (std::size_t i = 0; i < names.size(); ++i) {
        const bool isRedirected = i == 1 && !redirectedTheme_.empty() &&
                                  EqualIgnoringCase(names[0], kThemesFolder) &&
                                  EqualIgnoringCase(names[1], redirectedTheme_);
        const auto entry = folder->Find(isRedirected ? temporaryName_ : names[i]);
        if (!entry || entry->kind != EntryKind::kFolder) return nullptr;
        folder = folder->Open(entry->name);
    }
    return folder;
}

std::unique_ptr<Folder> WebFiles::OpenFolder(const WebPath& names) const {
    auto folder = FindFolder(names);
    if (folder) return folder;
    throw RunTimeError(ErrorNumber::kPathNotFound,
                       "\"" + UrlOf(names) + "\" could not be opened: the web has no such folder.");
}

void WebFiles::RedirectTheme(std::string name, std::string temporaryName) {
    redirectedTheme_ = std::move(name);
    temporaryName_ = std::move(temporaryName);
}

std::string ReadWholeFile(const Folder& folder, std::string_view name, std::uint64_t maxBytes) {
    const auto file = folder.OpenFile(name);
    if (file->Size() > maxBytes)
        throw EntryError(ErrorNumber::kPathFileAccess, folder, name, "was left out",
                         "it is larger than " + std::to_string(maxBytes / kMegabyte) + " MB");
    return file->Read(0, file->Size());
}

void WriteWholeFile(Folder& folder, std::string_view name, std::string_view bytes,
                    Durability durability) {
    const auto file = folder.Replace(name, durability);
    file->Write(bytes);
    file->Commit();
}

RunTimeError EntryError(ErrorNumber number, const Folder& folder, std::string_view name,
                        std::string_view failure, std::string_view reason) {
    std::string text = "\"" + folder.PathOf(name) + "\" ";
    text.append(failure).append(": ").append(reason).append(".");
    return {number, text};
}

}  // namespace morpho
