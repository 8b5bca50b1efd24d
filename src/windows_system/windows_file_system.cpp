#include "windows_system/windows_file_system.h"

#include <algorithm>

#include "text/ignoring_case.h"
#include "windows_system/disk_calls.h"
#include "windows_system/full_path.h"
#include "windows_system/patience.h"
#include "windows_system/replacing_file.h"
#include "windows_system/wide.h"
#include "windows_system/windows_error.h"

namespace morpho {

namespace {

FileEntry EntryOf(const FoundFile& file) {
    return {file.name, file.attributes, file.size};
}

void CopyWhole(const std::wstring& from, const std::wstring& to, Links links,
               Durability durability) {
    const FileHandle source = OpenToRead(from, links);
    ReplacingFile copy(to, durability);
    copy.CopyFrom(source, from);
    copy.Commit();
}

// Copying a folder into itself would not end.
void RefuseCopyIntoItself(const std::wstring& source, const std::wstring& destination) {
    std::wstring inner = destination.substr(0, source.size() + 1);
    if (::CompareStringOrdinal(inner.c_str(), -1, (source + L"\\").c_str(), -1, TRUE) == CSTR_EQUAL)
        throw SystemError(ErrorNumber::kPathFileAccess, ShownPath(source), "could not be copied",
                          "the destination lies inside it");
}

}  // namespace

WindowsFileSystem::WindowsFileSystem(const std::string& scratchFolder)
    : scratchFolder_(scratchFolder.empty() ? L"" : FullPath(scratchFolder) + L"\\") {}

std::optional<FileEntry> WindowsFileSystem::Find(std::string_view path) const {
    try {
        const auto found = FindFile(FullPath(path));
        return found ? std::optional(EntryOf(*found)) : std::nullopt;
    } catch (const RunTimeError&) {
        return {};
    }
}

std::vector<FileEntry> WindowsFileSystem::List(std::string_view folder) const {
    const std::wstring path = FullPath(folder);
    const FileHandle held = HoldFolder(path, Links::kFollowed);
    std::vector<FileEntry> entries;
    for (const FoundFile& file : FilesOf(path))
        entries.push_back(EntryOf(file));
    std::stable_sort(entries.begin(), entries.end(), [](const FileEntry& a, const FileEntry& b) {
        return Folded(a.name) < Folded(b.name);
    });
    return entries;
}

std::string WindowsFileSystem::ReadFile(std::string_view path) const {
    const std::wstring full = FullPath(path);
    return ReadAll(OpenToRead(full, Links::kFollowed), full);
}

std::string WindowsFileSystem::ReadPart(std::string_view path, std::uint64_t offset,
                                        std::size_t count) const {
    const std::wstring full = FullPath(path);
    return ReadFrom(OpenToRead(full, Links::kFollowed), offset, count, full);
}

void WindowsFileSystem::WriteFile(std::string_view path, std::string_view bytes) {
    WriteFile(path, [&](const ByteSink& sink) { sink(bytes); });
}

void WindowsFileSystem::WriteFile(std::string_view path,
                                  const std::function<void(const ByteSink&)>& write) {
    const std::wstring full = FullPath(path);
    ReplacingFile file(full, DurabilityOf(full));
    write([&](std::string_view piece) { file.Write(piece); });
    file.Commit();
}

void WindowsFileSystem::AppendFile(std::string_view path, std::string_view bytes) {
    const std::wstring full = FullPath(path);
    FileHandle file;
    // Nobody else writes while half a line is cut off again.
    const bool opened = TryWithPatience([&] {
        file = FileHandle(::CreateFileW(full.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                        OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        return file.IsOpen();
    });
    LARGE_INTEGER end = {};
    if (!opened || !::SetFilePointerEx(file.Get(), {}, &end, FILE_END))
        throw SystemError(::GetLastError(), ShownPath(full), "could not be written");
    try {
        WriteTo(file, bytes, full);
    } catch (const RunTimeError&) {
        if (::SetFilePointerEx(file.Get(), end, nullptr, FILE_BEGIN)) ::SetEndOfFile(file.Get());
        throw;
    }
}

void WindowsFileSystem::Copy(std::string_view source, std::string_view destination) {
    const std::wstring to = FullPath(destination);
    CopyWhole(FullPath(source), to, Links::kFollowed, DurabilityOf(to));
}

void WindowsFileSystem::Move(std::string_view source, std::string_view destination) {
    MoveEntry(FullPath(source), FullPath(destination));
}

void WindowsFileSystem::Delete(std::string_view path) {
    RemoveEntry(FullPath(path));
}

void WindowsFileSystem::CreateFolder(std::string_view path) {
    MakeFolder(FullPath(path));
}

void WindowsFileSystem::CopyFolder(std::string_view source, std::string_view destination) {
    const std::wstring from = FullPath(source);
    const std::wstring to = FullPath(destination);
    const FileHandle held = HoldFolder(from, Links::kFollowed);
    RefuseCopyIntoItself(from, to);
    if (!FindFile(to)) MakeFolder(to);
    CopyContents(from, to);
}

void WindowsFileSystem::DeleteFolder(std::string_view path) {
    const std::wstring full = FullPath(path);
    const auto entry = FindFile(full);
    // A link to a folder goes alone; what it leads to stays.
    if (entry && entry->IsLink() && entry->IsFolder()) return RemoveEntry(full);
    RemoveTree(full);
}

void WindowsFileSystem::CopyContents(const std::wstring& source,
                                     const std::wstring& destination) const {
    std::vector<std::pair<std::wstring, std::wstring>> pending = {{source, destination}};
    while (!pending.empty()) {
        const auto [from, to] = std::move(pending.back());
        pending.pop_back();
        // The first may be a link.
        const FileHandle held =
            HoldFolder(from, from == source ? Links::kFollowed : Links::kRefused);
        for (const FoundFile& entry : FilesOf(from)) {
            const std::wstring inner = JoinPath(from, Wide(entry.name));
            const std::wstring target = JoinPath(to, Wide(entry.name));
            if (entry.IsLink()) continue;
            if (!entry.IsFolder()) {
                CopyWhole(inner, target, Links::kRefused, DurabilityOf(target));
            } else {
                if (!FindFile(target)) MakeFolder(target);
                pending.emplace_back(inner, target);
            }
        }
    }
}

Durability WindowsFileSystem::DurabilityOf(const std::wstring& path) const {
    return !scratchFolder_.empty() && path.starts_with(scratchFolder_) ? Durability::kUnflushed
                                                                       : Durability::kFlushed;
}

}  // namespace morpho
