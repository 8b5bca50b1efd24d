#include "web_host/web_session.h"

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "linux/whole_file.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "web_host/theme_of_web.h"

namespace morpho {

namespace {

// Far more than a page or a theme's picture takes; a longer file is there to fill the memory.
constexpr off_t kMaxFileBytes = 64L * 1024 * 1024;

// A web's own settings stand in "_vti_pvt": a folder that has one is another web.
bool IsWeb(const std::vector<DiskEntry>& entries) {
    return std::any_of(entries.begin(), entries.end(), [](const DiskEntry& entry) {
        return entry.kind == DiskKind::kFolder && EqualIgnoringCase(entry.name, "_vti_pvt");
    });
}

UnpackOptions OptionsOf(const WebSession& web) {
    return {web.unpackFolder, web.onlyTheme, {}, true};
}

bool HasPages(const DiskEntry& folder) {
    return folder.kind == DiskKind::kFolder && !folder.name.starts_with('.') &&
           !EqualIgnoringCase(folder.name, "_themes") &&
           !StartsWithIgnoringCase(folder.name, "_vti_");
}

}  // namespace

std::string WebSession::Url() const {
    std::string url = "file:///" + ToWindowsPath(opened.folder);
    std::replace(url.begin(), url.end(), '\\', '/');
    return url;
}

void WebSession::Log(std::string_view line) const {
    if (log) log(line);
}

void WebSession::Report(const std::string& sentence) {
    reports.push_back(sentence);
    Log(sentence);
}

std::optional<std::vector<std::string>> NamesInWeb(const WebSession& web, std::string_view url) {
    const std::string whole = web.Url();
    if (StartsWithIgnoringCase(url, whole)) {
        url.remove_prefix(whole.size());
        if (!url.empty() && url[0] != '/' && url[0] != '\\') return {};
    }
    std::vector<std::string> names;
    while (!url.empty()) {
        const std::size_t end = std::min(url.find_first_of("/\\"), url.size());
        const std::string name = NameToDisk(url.substr(0, end));
        url.remove_prefix(std::min(end + 1, url.size()));
        if (name.empty() || name == ".") continue;
        if (!IsEntryName(name)) return {};
        names.push_back(name);
    }
    return names;
}

std::optional<DiskFolder> FindFolderInWeb(const WebSession& web,
                                          const std::vector<std::string>& names) {
    std::optional<DiskFolder> folder = web.Root();
    for (const std::string& name : names) {
        const auto entry = folder->Find(name);
        if (!entry || entry->kind != DiskKind::kFolder) return {};
        folder = folder->Subfolder(entry->name);
    }
    return folder;
}

void RemoveAbandoned(const WebSession& web, const DiskFolder& folder) {
    for (const DiskEntry& entry : folder.Entries()) {
        if (entry.kind != DiskKind::kFile || !IsAbandonedBesideName(entry.name)) continue;
        try {
            web.writer->RemoveFile(folder.PathOf(entry.name));
        } catch (const RunTimeError&) {
            // It does no harm: nothing takes it for a file of the web.
        }
    }
}

void VisitPages(WebSession& web,
                const std::function<void(const DiskFolder& folder, const std::string& url,
                                         const std::string& name)>& take) {
    std::vector<std::vector<std::string>> pending = {{}};
    while (!pending.empty()) {
        const std::vector<std::string> names = std::move(pending.back());
        pending.pop_back();
        try {
            const auto folder = FindFolderInWeb(web, names);
            if (!folder) continue;
            const std::vector<DiskEntry> entries = folder->Entries();
            if (!names.empty() && IsWeb(entries)) continue;
            std::string url;
            for (const std::string& name : names)
                url += NameFromDisk(name) + '/';
            for (const DiskEntry& entry : entries) {
                if (entry.kind == DiskKind::kFile && IsPageName(entry.name))
                    take(*folder, url, entry.name);
                if (!HasPages(entry)) continue;
                pending.push_back(names);
                pending.back().push_back(entry.name);
            }
        } catch (const RunTimeError& error) {
            web.Report(error.what());
        }
    }
}

void RefreshThemes(WebSession& web) {
    web.opened = OpenWebFolder(web.opened.folder, OptionsOf(web));
}

bool MakeThemeFresh(WebSession& web, const std::string& name) {
    const auto folder = FindFolderInWeb(web, {"_themes", NameToDisk(name)});
    if (!IsEntryName(NameToDisk(name)) || !folder) return false;
    const std::string diskName(LastName(folder->Path()));
    std::error_code error;
    const std::string unpacked = JoinDiskPath(web.unpackFolder, diskName);
    std::filesystem::remove_all(unpacked, error);
    UnpackOptions options = OptionsOf(web);
    options.onlyTheme = NameFromDisk(diskName);
    web.opened = OpenWebFolder(web.opened.folder, options);
    return !error && std::filesystem::is_directory(unpacked, error);
}

std::string ReadWebFile(const DiskFolder& folder, const std::string& name) {
    const Descriptor file = folder.OpenFile(name);
    struct stat status = {};
    if (::fstat(file.Number(), &status) == 0 && status.st_size > kMaxFileBytes)
        throw FileError(ErrorNumber::kPathFileAccess, folder.PathOf(name), "was left out",
                        "it is too large for a web's file");
    return ReadWhole(file, folder.PathOf(name));
}

}  // namespace morpho
