#include "web_window/page_files.h"

#include <QFileInfo>

#include "qt/qt_text.h"
#include "web_host/limits.h"
#include "web_host/page_walk.h"

namespace morpho {

namespace {

std::optional<std::string> HomePageOf(const Folder& folder) {
    for (const std::string_view name : kHomePages) {
        const auto entry = folder.Find(name);
        if (entry && entry->kind == EntryKind::kFile) return entry->name;
    }
    return {};
}

}  // namespace

std::string PageFiles::Read(const WebPath& names) {
    if (names.empty()) throw RunTimeError(ErrorNumber::kFileNotFound, "A folder is no file.");
    const auto folder = web_->OpenFolder({names.begin(), names.end() - 1});
    const auto entry = folder->Find(names.back());
    const std::string& name = entry ? entry->name : names.back();
    const QString path = ToQt(folder->PathOf(name));
    read_[path] = StampOf(path);
    return ReadWholeFile(*folder, name, kMaxFileBytes);
}

QStringList PageFiles::Paths() const {
    QStringList paths;
    for (const auto& file : read_)
        paths.push_back(file.first);
    return paths;
}

bool PageFiles::HaveChanged() const {
    for (const auto& [path, stamp] : read_)
        if (StampOf(path) != stamp) return true;
    return false;
}

PageFiles::Stamp PageFiles::StampOf(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists()) return {};
    return {file.size(), file.lastModified()};
}

std::optional<WebPath> FindFile(const WebFiles& web, const WebPath& names) {
    std::unique_ptr<Folder> folder = web.Root().OpenAgain();
    WebPath found;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto entry = folder->Find(names[i]);
        if (!entry) return {};
        found.push_back(entry->name);
        if (entry->kind == EntryKind::kFile && i + 1 == names.size()) return found;
        if (entry->kind != EntryKind::kFolder) return {};
        folder = folder->Open(entry->name);
    }
    const auto home = HomePageOf(*folder);
    if (!home) return {};
    found.push_back(*home);
    return found;
}

}  // namespace morpho
