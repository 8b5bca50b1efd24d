#include "web_host/opened_web.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <set>

#include "formats/profile_text.h"
#include "linux/disk_folder.h"
#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "linux/whole_file.h"
#include "text/ignoring_case.h"
#include "text/windows_1252.h"
#include "web_host/installed_themes.h"
#include "web_host/web_session.h"

namespace morpho {

namespace {

// The entry of this name among the folder's files.
const DiskEntry* FindFile(const std::vector<DiskEntry>& entries, const std::string& name) {
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const DiskEntry& entry) {
        return entry.kind == DiskKind::kFile && EqualIgnoringCase(entry.name, name);
    });
    return found == entries.end() ? nullptr : &*found;
}

// The title that the theme's description gives it, or its name.
std::string LabelOf(const DiskFolder& folder, const std::string& description,
                    const std::string& name) {
    const auto title = ProfileText(ReadWebFile(folder, description)).Value("info", "title");
    return title && !title->empty() ? TextOfUnknownCoding(*title) : name;
}

// Writes a file into the private cache, where nobody else writes.
void WriteUnpacked(const DiskFolder& folder, const std::string& name, const std::string& bytes) {
    const int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    Descriptor file(::openat(folder.Number(), name.c_str(), flags, 0600));
    if (!file.IsOpen() || !WriteAll(file.Number(), bytes) || !file.Close())
        throw FileError(errno, folder.PathOf(name), "could not be written");
}

class WebOpener {
  public:
    WebOpener(const std::string& folder, const UnpackOptions& options)
        : web_(DiskFolder::Open(folder, true)), options_(options) {
        opened_.folder = folder;
        if (!options.installFolder.empty()) installed_.emplace(options.installFolder);
    }

    OpenedWeb Open() {
        const std::vector<DiskEntry> entries = web_.Entries();
        if (!options_.keepUnpacked) EmptyUnpackFolder();
        for (const DiskEntry& entry : entries) {
            if (entry.kind == DiskKind::kFolder && EqualIgnoringCase(entry.name, "_themes"))
                TakeThemes(entry.name);
        }
        if (installed_) Readable([&] { return installed_->RemoveOthers(); });
        if (!installFailure_.empty()) opened_.skipped.push_back(installFailure_);
        std::stable_sort(
            opened_.themes.begin(), opened_.themes.end(),
            [](const Theme& a, const Theme& b) { return Lowered(a.name) < Lowered(b.name); });
        return std::move(opened_);
    }

  private:
    void EmptyUnpackFolder() {
        std::error_code error;
        std::filesystem::remove_all(options_.unpackFolder, error);
        if (!error) std::filesystem::create_directories(options_.unpackFolder, error);
        if (error) throw FileError(error.value(), options_.unpackFolder, "could not be emptied");
    }

    // What `read` returns; nothing, with the reason kept, when it fails.
    template <typename Read>
    auto Readable(Read read) -> std::optional<decltype(read())> {
        try {
            return read();
        } catch (const RunTimeError& error) {
            opened_.skipped.emplace_back(error.what());
            return {};
        }
    }

    void TakeThemes(const std::string& name) {
        const auto themes = Readable([&] { return web_.Subfolder(name); });
        const auto entries = themes ? Readable([&] { return themes->Entries(); }) : std::nullopt;
        if (!entries) return;
        for (const DiskEntry& entry : *entries) {
            if (entry.kind != DiskKind::kFolder) continue;
            const std::size_t told = opened_.skipped.size();
            TakeTheme(*themes, entry.name);
            if (!IsUnpacked(entry.name)) opened_.skipped.resize(told);
        }
    }

    bool IsUnpacked(const std::string& diskName) const {
        return !options_.onlyTheme ||
               EqualIgnoringCase(*options_.onlyTheme, NameFromDisk(diskName));
    }

    // A folder that cannot be read is listed by its name, but not unpacked.
    void TakeTheme(const DiskFolder& themes, const std::string& diskName) {
        Theme theme{NameFromDisk(diskName), NameFromDisk(diskName)};
        const auto folder = Readable([&] { return themes.Subfolder(diskName); });
        const auto entries = folder ? Readable([&] { return folder->Entries(); }) : std::nullopt;
        const DiskEntry* description = entries ? FindFile(*entries, diskName + ".inf") : nullptr;
        if (entries && !description) return WhereInstalling([&] { installed_->Reserve(diskName); });
        if (!names_.insert(Lowered(diskName)).second) {
            Skip(themes.PathOf(diskName), "another theme has that name");
            return;
        }
        if (description) {
            const auto label =
                Readable([&] { return LabelOf(*folder, description->name, theme.name); });
            if (label) theme.label = *label;
            const auto target = IsUnpacked(diskName) ? NewUnpackFolder(diskName) : std::nullopt;
            if (target || installed_) TakeFiles(*folder, *entries, diskName, target);
        }
        opened_.themes.push_back(std::move(theme));
    }

    // Nothing when the theme is unpacked already and stays so.
    std::optional<DiskFolder> NewUnpackFolder(const std::string& diskName) const {
        const std::string path = JoinDiskPath(options_.unpackFolder, diskName);
        if (::mkdir(path.c_str(), 0700) == 0) return DiskFolder::Open(path, false);
        if (errno == EEXIST && options_.keepUnpacked) return {};
        throw FileError(errno, path, "could not be created");
    }

    void TakeFiles(const DiskFolder& theme, const std::vector<DiskEntry>& entries,
                   const std::string& diskName, const std::optional<DiskFolder>& target) {
        std::vector<InstalledThemes::File> files;
        std::set<std::string> names;
        for (const DiskEntry& entry : entries) {
            if (entry.kind != DiskKind::kFile || IsBesideName(entry.name)) continue;
            if (!names.insert(Lowered(entry.name)).second) {
                Skip(theme.PathOf(entry.name), "another file has that name");
                continue;
            }
            auto bytes = Readable([&] { return ReadWebFile(theme, entry.name); });
            if (!bytes) continue;
            if (target) WriteUnpacked(*target, entry.name, *bytes);
            if (installed_) files.push_back({NameFromDisk(entry.name), std::move(*bytes)});
        }
        WhereInstalling([&] { installed_->Install(diskName, files); });
    }

    // Where one cannot be installed, the others cannot either.
    void WhereInstalling(const std::function<void()>& step) {
        if (!installed_) return;
        try {
            step();
        } catch (const RunTimeError& error) {
            installFailure_ = error.what();
            installed_.reset();
        }
    }

    void Skip(const std::string& path, std::string_view reason) {
        opened_.skipped.emplace_back(
            FileError(ErrorNumber::kFileExists, path, "was left out", reason).what());
    }

    DiskFolder web_;
    UnpackOptions options_;
    std::optional<InstalledThemes> installed_;
    std::string installFailure_;
    std::set<std::string> names_;  // of the themes, in lower case
    OpenedWeb opened_;
};

}  // namespace

OpenedWeb OpenWebFolder(const std::string& folder, const UnpackOptions& options) {
    return WebOpener(folder, options).Open();
}

}  // namespace morpho
