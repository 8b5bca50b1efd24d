#include "web_host/web_files.h"

#include <algorithm>

#include "text/ignoring_case.h"

namespace morpho {

WebFiles::WebFiles(Disk& disk, std::string path)
    : path_(std::move(path)), root_(disk.Open(path_)) {}

std::string WebFiles::Url() const {
    std::string url = "file:///" + path_;
    std::replace(url.begin(), url.end(), '\\', '/');
    return url;
}

std::optional<WebPath> WebFiles::PathOfUrl(std::string_view url) const {
    const std::string whole = Url();
    if (EqualIgnoringCase(url.substr(0, whole.size()), whole)) {
        url.remove_prefix(whole.size());
        if (!url.empty() && url[0] != '/' && url[0] != '\\') return {};
    }
    WebPath names;
    while (!url.empty()) {
        const std::string name(url.substr(0, url.find_first_of("/\\")));
        url.remove_prefix(std::min(name.size() + 1, url.size()));
        if (name.empty() || name == ".") continue;
        if (name == ".." || name.find('\0') != name.npos) return {};
        names.push_back(name);
    }
    return names;
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
    std::string url = Url();
    for (const std::string& name : names)
        url += '/' + name;
    throw RunTimeError(ErrorNumber::kPathNotFound,
                       "\"" + url + "\" could not be opened: the web has no such folder.");
}

void WebFiles::RedirectTheme(std::string name, std::string temporaryName) {
    redirectedTheme_ = std::move(name);
    temporaryName_ = std::move(temporaryName);
}

std::string ReadWholeFile(const Folder& folder, std::string_view name, std::uint64_t maxBytes) {
    const auto file = folder.OpenFile(name);
    if (file->Size() > maxBytes)
        throw EntryError(ErrorNumber::kPathFileAccess, folder, name, "was left out",
                         "it is larger than " + std::to_string(maxBytes / (1024 * 1024)) + " MB");
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
