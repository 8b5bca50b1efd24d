#include "web_host/packed_theme.h"

#include <algorithm>
#include <functional>

#include "formats/theme_addresses.h"
#include "formats/theme_package.h"
#include "formats/windows_1252_code_page.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "web_host/limits.h"
#include "web_host/web_files.h"

namespace morpho {

namespace {

constexpr std::string_view kHeader = "Morpho theme package 1";

// Whether a package can hold a file of this name: whether it comes back from one.
bool IsPackable(const std::string& name) {
    const Windows1252CodePage codePage;
    try {
        const std::string index = FormatPackageIndex(codePage, "", "1", {{name, 0}});
        return ReadPackageIndex(codePage, index + std::string(kPackageMarker)).names.front() ==
               name;
    } catch (const RunTimeError&) {
        return false;
    }
}

using Sink = std::function<void(std::string_view)>;

// Hands the package's bytes over, piece by piece.
void StreamPackage(const Folder& theme, const std::vector<PackedFile>& files, const Sink& sink) {
    sink(FormatPackageIndex(Windows1252CodePage(), kHeader, std::to_string(files.size()), files));
    for (const PackedFile& file : files) {
        const std::string bytes = ReadWholeFile(theme, file.name, kMaxThemeFileBytes);
        if (bytes.size() != file.length)
            throw EntryError(ErrorNumber::kPathFileAccess, theme, file.name, "could not be read",
                             "another program is writing it");
        sink(kPackageMarker);
        sink(bytes);
    }
}

bool HoldsPackage(const Folder& installed, const std::string& packageName, const Folder& theme,
                  const std::vector<PackedFile>& files) {
    const auto entry = installed.Find(packageName);
    if (!entry || entry->kind != EntryKind::kFile) return false;
    const auto existing = installed.OpenFile(entry->name);
    std::uint64_t offset = 0;
    bool same = true;
    StreamPackage(theme, files, [&](std::string_view piece) {
        same = same && existing->Read(offset, piece.size()) == piece;
        offset += piece.size();
    });
    return same && offset == existing->Size();
}

void WriteWhereChanged(Folder& folder, const std::string& name, const std::string& bytes) {
    const auto entry = folder.Find(name);
    if (entry && entry->kind == EntryKind::kFile &&
        ReadWholeFile(folder, entry->name, kMaxFileBytes) == bytes)
        return;
    WriteWholeFile(folder, name, bytes, Durability::kUnflushed);
}

}  // namespace

std::optional<PackedTheme> PackedTheme::Find(const Folder& themes, const std::string& name) {
    const auto entry = themes.Find(name);
    if (!entry || entry->kind != EntryKind::kFolder) return {};
    const auto folder = themes.Open(entry->name);
    const auto description = folder->Find(entry->name + ".inf");
    const auto package = folder->Find(entry->name + ".elm");
    if (!description || !package) return {};
    PackedTheme theme;
    theme.descriptionName_ = name + ".inf";
    theme.description_ = ReadWholeFile(*folder, description->name, kMaxThemeFileBytes);
    theme.package_ = folder->OpenFile(package->name);
    if (theme.package_->Size() > kMaxPackageBytes)
        throw EntryError(ErrorNumber::kPathFileAccess, *folder, package->name, "cannot be used",
                         "a theme may have " + std::to_string(kMaxThemeBytes / kMegabyte) + " MB");
    theme.ReadMembers();
    return theme;
}

void PackedTheme::ReadMembers() {
    const std::string start = package_->Read(0, kMaxPackageIndexBytes);
    const PackageIndex index = ReadPackageIndex(Windows1252CodePage(), start);
    std::uint64_t offset = start.size() - index.contents.size();
    for (std::size_t i = 0; i < index.names.size(); ++i) {
        const std::uint64_t length = MemberLength(index, i);
        offset += kPackageMarker.size();
        if (length > package_->Size() - std::min(offset, package_->Size()))
            RefusePackage("gives a wrong length for \"" + index.names[i] + "\"");
        // The file beside the package is the description that counts.
        if (!EqualIgnoringCase(index.names[i], descriptionName_))
            members_.push_back({index.names[i], offset, length});
        offset += length;
    }
    if (offset != package_->Size()) RefusePackage("goes on behind its last member");
    for (std::size_t i = 0; i < FileCount(); ++i)
        names_.push_back(Folded(FileName(i)));
    std::sort(names_.begin(), names_.end());
}

std::string PackedTheme::FileName(std::size_t index) const {
    return index < members_.size() ? members_[index].name : descriptionName_;
}

std::string PackedTheme::FileBytes(std::size_t index) const {
    if (index == members_.size()) return description_;
    const Member& member = members_[index];
    const std::string marked = package_->Read(member.offset - kPackageMarker.size(),
                                              kPackageMarker.size() + member.length);
    if (!marked.starts_with(kPackageMarker) ||
        marked.size() != kPackageMarker.size() + member.length)
        RefusePackage("has no mark before \"" + member.name + "\"");
    std::string bytes = marked.substr(kPackageMarker.size());
    if (!Folded(member.name).ends_with(".css")) return bytes;
    return WithOwnPictures(bytes, [this](const std::string& file) { return HasMember(file); });
}

bool PackedTheme::HasMember(const std::string& name) const {
    return std::binary_search(names_.begin(), names_.end(), Folded(name));
}

void PackTheme(const Folder& theme, const std::string& descriptionName,
               const std::vector<PackedFile>& files, const std::string& name, Folder& installed) {
    std::vector<PackedFile> packed;
    for (const PackedFile& file : files) {
        if (file.name != descriptionName && IsPackable(file.name) &&
            packed.size() < kMaxPackageMembers)
            packed.push_back(file);
    }
    if (!HoldsPackage(installed, name + ".elm", theme, packed)) {
        const auto package = installed.Replace(name + ".elm", Durability::kUnflushed);
        StreamPackage(theme, packed, [&](std::string_view piece) { package->Write(piece); });
        package->Commit();
    }
    WriteWhereChanged(installed, name + ".inf",
                      ReadWholeFile(theme, descriptionName, kMaxThemeFileBytes));
}

}  // namespace morpho
