#include "web_host/theme_unpacking.h"

#include <algorithm>
#include <functional>
#include <set>

#include "formats/theme_description.h"
#include "formats/windows_1252_code_page.h"
#include "text/ignoring_case.h"
#include "web_host/installed_themes.h"
#include "web_host/limits.h"

namespace morpho {

namespace {

// The file of this name among the folder's entries.
const FolderEntry* FindFile(const std::vector<FolderEntry>& entries, const std::string& name) {
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const FolderEntry& entry) {
        return entry.kind == EntryKind::kFile && EqualIgnoringCase(entry.name, name);
    });
    return found == entries.end() ? nullptr : &*found;
}

// The title that the theme's description gives it, or its name.
std::string LabelOf(const Folder& folder, const std::string& description, const std::string& name) {
    const Windows1252CodePage codePage;
    const std::string bytes = ReadWholeFile(folder, description, kMaxThemeFileBytes);
    const std::string title = ThemeDescription(codePage, bytes).Title();
    return title.empty() ? name : title;
}

class ThemeUnpacker {
  public:
    ThemeUnpacker(Disk& disk, const UnpackOptions& options)
        : options_(options), unpackFolder_(disk.OpenOrCreate(options.unpackFolder)) {
        if (options.installFolder.empty()) return;
        WhereInstalling([&] { installed_.emplace(disk, options.installFolder); });
    }

    ListedThemes UnpackAll(const Folder& web) {
        const std::vector<FolderEntry> entries = web.Entries();
        if (!options_.keepUnpacked) EmptyUnpackFolder();
        for (const FolderEntry& entry : entries) {
            if (entry.kind == EntryKind::kFolder && EqualIgnoringCase(entry.name, kThemesFolder))
                VisitThemes(web, entry.name);
        }
        if (installed_) Readable([&] { return installed_->RemoveOthers(), true; });
        if (!installFailure_.empty()) listed_.skipped.push_back(installFailure_);
        std::stable_sort(
            listed_.themes.begin(), listed_.themes.end(),
            [](const Theme& a, const Theme& b) { return Folded(a.name) < Folded(b.name); });
        return std::move(listed_);
    }

    // The theme in this folder alone.
    bool UnpackOne(const Folder& theme, const std::string& name) {
        const std::vector<FolderEntry> entries = theme.Entries();
        if (!FindFile(entries, name + ".inf")) return false;
        const std::vector<PackedFile> files = FilesOf(theme, entries);
        if (SizeOf(files) > kMaxThemeBytes) return false;
        Copy(theme, files, *unpackFolder_->Create(name));
        return true;
    }

  private:
    static std::uint64_t SizeOf(const std::vector<PackedFile>& files) {
        std::uint64_t bytes = 0;
        for (const PackedFile& file : files)
            bytes += file.length;
        return bytes;
    }

    void EmptyUnpackFolder() {
        for (const FolderEntry& entry : unpackFolder_->Entries()) {
            if (entry.kind == EntryKind::kFolder) {
                unpackFolder_->RemoveFolder(entry.name);
            } else {
                unpackFolder_->Remove(entry.name);
            }
        }
    }

    // What `read` returns; nothing, with the reason kept, when it fails.
    template <typename Read>
    auto Readable(Read read) -> std::optional<decltype(read())> {
        try {
            return read();
        } catch (const RunTimeError& error) {
            listed_.skipped.emplace_back(error.what());
            return {};
        }
    }

    void VisitThemes(const Folder& web, const std::string& name) {
        const auto themes = Readable([&] { return web.Open(name); });
        const auto entries = themes ? Readable([&] { return (*themes)->Entries(); }) : std::nullopt;
        if (!entries) return;
        for (const FolderEntry& entry : *entries) {
            // A theme that is being saved has a temporary name.
            if (entry.kind != EntryKind::kFolder || IsTemporaryName(entry.name)) continue;
            const std::size_t told = listed_.skipped.size();
            VisitTheme(**themes, entry.name);
            if (!IsUnpacked(entry.name)) listed_.skipped.resize(told);
        }
    }

    bool IsUnpacked(const std::string& name) const {
        return !options_.onlyTheme || EqualIgnoringCase(*options_.onlyTheme, name);
    }

    // A folder that cannot be read is listed by its name, but not unpacked.
    void VisitTheme(const Folder& themes, const std::string& name) {
        Theme theme{name, name};
        const auto folder = Readable([&] { return themes.Open(name); });
        const auto entries = folder ? Readable([&] { return (*folder)->Entries(); }) : std::nullopt;
        const FolderEntry* description = entries ? FindFile(*entries, name + ".inf") : nullptr;
        if (entries && !description) return WhereInstalling([&] { installed_->Reserve(name); });
        if (!names_.insert(Folded(name)).second)
            return Skip(themes, name, "another theme has that name");
        if (description) {
            const auto label =
                Readable([&] { return LabelOf(**folder, description->name, theme.name); });
            if (label) theme.label = *label;
            MakeReady(**folder, *entries, name, description->name);
        }
        listed_.themes.push_back(std::move(theme));
    }

    void MakeReady(const Folder& theme, const std::vector<FolderEntry>& entries,
                   const std::string& name, const std::string& description) {
        const bool isNeeded = IsUnpacked(name) && !IsUnpackedAlready(name);
        if (!isNeeded && !installed_) return;
        const std::vector<PackedFile> files = FilesOf(theme, entries);
        if (SizeOf(files) > kMaxThemeBytes)
            return Skip(theme, "",
                        "a theme may have " + std::to_string(kMaxThemeBytes / kMegabyte) +
                            " MB, and this one has more");
        if (isNeeded) Copy(theme, files, *unpackFolder_->Create(name));
        WhereInstalling([&] { installed_->Install(name, theme, description, files); });
    }

    bool IsUnpackedAlready(const std::string& name) const {
        return options_.keepUnpacked && unpackFolder_->Find(name).has_value();
    }

    // The regular files that can be read, with one of those whose names differ in case only.
    std::vector<PackedFile> FilesOf(const Folder& theme, const std::vector<FolderEntry>& entries) {
        std::vector<PackedFile> files;
        std::set<std::string> names;
        for (const FolderEntry& entry : entries) {
            if (entry.kind != EntryKind::kFile || IsTemporaryName(entry.name)) continue;
            if (!names.insert(Folded(entry.name)).second) {
                Skip(theme, entry.name, "another file has that name");
                continue;
            }
            const auto size = Readable([&] { return theme.OpenFile(entry.name)->Size(); });
            if (size && *size > kMaxThemeFileBytes) {
                Skip(theme, entry.name,
                     "it is larger than " + std::to_string(kMaxThemeFileBytes / kMegabyte) + " MB");
            } else if (size) {
                files.push_back({entry.name, *size});
            }
        }
        return files;
    }

    // Into the private cache, where nobody else writes.
    void Copy(const Folder& theme, const std::vector<PackedFile>& files, Folder& target) {
        for (const PackedFile& file : files) {
            const auto bytes =
                Readable([&] { return ReadWholeFile(theme, file.name, kMaxThemeFileBytes); });
            if (bytes) WriteWholeFile(target, file.name, *bytes, Durability::kUnflushed);
        }
    }

    // Where one cannot be installed, the others cannot either.
    void WhereInstalling(const std::function<void()>& step) {
        if (!installed_ && !installFailure_.empty()) return;
        if (!installed_ && options_.installFolder.empty()) return;
        try {
            step();
        } catch (const RunTimeError& error) {
            installFailure_ = error.what();
            installed_.reset();
        }
    }

    void Skip(const Folder& folder, const std::string& name, std::string_view reason) {
        listed_.skipped.emplace_back(
            EntryError(ErrorNumber::kFileExists, folder, name, "was left out", reason).what());
    }

    const UnpackOptions& options_;
    std::unique_ptr<Folder> unpackFolder_;
    std::optional<InstalledThemes> installed_;
    std::string installFailure_;
    std::set<std::string> names_;  // of the themes, folded
    ListedThemes listed_;
};

}  // namespace

ListedThemes UnpackThemes(Disk& disk, const WebFiles& web, const UnpackOptions& options) {
    return ThemeUnpacker(disk, options).UnpackAll(web.Root());
}

bool UnpackTheme(Disk& disk, const Folder& theme, const std::string& name,
                 const std::string& unpackFolder) {
    const UnpackOptions options{unpackFolder, name, {}, true};
    return ThemeUnpacker(disk, options).UnpackOne(theme, name);
}

}  // namespace morpho
