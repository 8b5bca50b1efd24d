#include "support/fake_file_system.h"

#include <gtest/gtest.h>

#include "platform/ignoring_case.h"

namespace morpho::test {

namespace {

std::string Normal(std::string_view path) {
    std::string normal;
    for (const char c : path) {
        if (c != '\\' || normal.empty() || normal.back() != '\\') normal += c;
    }
    if (!normal.empty() && normal.back() == '\\') normal.pop_back();
    return normal;
}

std::string Key(std::string_view path) {
    return Lowered(Normal(path));
}

std::string ParentOf(const std::string& normal) {
    const auto separator = normal.rfind('\\');
    return separator == std::string::npos ? std::string() : normal.substr(0, separator);
}

std::string NameIn(const std::string& normal) {
    return normal.substr(normal.rfind('\\') + 1);
}

[[noreturn]] void Throw(ErrorNumber number, std::string_view path) {
    const char* text = number == ErrorNumber::kFileNotFound   ? "File not found"
                       : number == ErrorNumber::kPathNotFound ? "Path not found"
                       : number == ErrorNumber::kFileExists   ? "File already exists"
                                                              : "Path/File access error";
    throw RunTimeError(number, std::string(text) + ": " + std::string(path));
}

}  // namespace

FakeFileSystem::FakeFileSystem() {
    PutFolder("C:");
    PutFolder("Z:");
}

void FakeFileSystem::PutFile(std::string_view path, std::string_view bytes,
                             FileAttributes attributes) {
    const std::string normal = Normal(path);
    PutFolder(ParentOf(normal));
    nodes_[Key(path)] = {NameIn(normal), attributes, std::string(bytes)};
}

void FakeFileSystem::PutFolder(std::string_view path, FileAttributes attributes) {
    const std::string normal = Normal(path);
    if (normal.empty()) return;
    if (!ParentOf(normal).empty() && !HasFolder(ParentOf(normal))) PutFolder(ParentOf(normal));
    nodes_[Key(path)] = {NameIn(normal), attributes | kFolderAttribute, {}};
}

bool FakeFileSystem::HasFile(std::string_view path) const {
    const auto entry = Find(path);
    return entry && !entry->IsFolder();
}

bool FakeFileSystem::HasFolder(std::string_view path) const {
    const auto entry = Find(path);
    return entry && entry->IsFolder();
}

std::string FakeFileSystem::Bytes(std::string_view path) const {
    const auto node = nodes_.find(Key(path));
    if (node != nodes_.end() && !node->second.IsFolder()) return node->second.bytes;
    ADD_FAILURE() << "There is no file " << path;
    return {};
}

std::vector<std::string> FakeFileSystem::FilesBelow(std::string_view folder) const {
    std::vector<std::string> files;
    const std::string start = Key(folder) + '\\';
    for (const auto& [key, node] : Below(Key(folder))) {
        if (node.IsFolder()) continue;
        const std::string parent = ParentOf(key.substr(start.size()));
        files.push_back(parent.empty() ? node.name : parent + '\\' + node.name);
    }
    return files;
}

void FakeFileSystem::FailOn(std::string_view path, ErrorNumber number) {
    failingPaths_[Key(path)] = number;
}

void FakeFileSystem::FailAt(int nth, ErrorNumber number) {
    FailNoMore();
    untilFailure_ = nth;
    failure_ = number;
}

void FakeFileSystem::FailFrom(int nth, ErrorNumber number) {
    FailAt(nth, number);
    staysBroken_ = true;
}

void FakeFileSystem::FailNoMore() {
    failingPaths_.clear();
    untilFailure_ = 0;
    failed_ = false;
    staysBroken_ = false;
}

void FakeFileSystem::CountDown(std::string_view path) const {
    if (untilFailure_ > 0 && --untilFailure_ == 0) {
        if (staysBroken_) untilFailure_ = 1;
        failed_ = true;
        Throw(failure_, path);
    }
}

void FakeFileSystem::Count(std::string_view path) const {
    CountDown(path);
    const auto failing = failingPaths_.find(Key(path));
    if (failing != failingPaths_.end()) Throw(failing->second, path);
}

const FakeFileSystem::Node& FakeFileSystem::File(std::string_view path) const {
    RequireFolder(ParentOf(Normal(path)));
    const auto node = nodes_.find(Key(path));
    if (node == nodes_.end()) Throw(ErrorNumber::kFileNotFound, path);
    if (node->second.IsFolder()) Throw(ErrorNumber::kPathFileAccess, path);
    return node->second;
}

void FakeFileSystem::RequireFolder(std::string_view path) const {
    if (!HasFolder(path)) Throw(ErrorNumber::kPathNotFound, path);
}

FakeFileSystem::Nodes FakeFileSystem::Below(const std::string& key) const {
    const std::string start = key + '\\';
    Nodes below;
    for (auto at = nodes_.lower_bound(start); at != nodes_.end() && at->first.starts_with(start);
         ++at)
        below.insert(*at);
    return below;
}

void FakeFileSystem::Store(std::string_view path, std::string_view bytes) {
    const std::string normal = Normal(path);
    RequireFolder(ParentOf(normal));
    const auto [node, added] =
        nodes_.try_emplace(Key(path), Node{NameIn(normal), kArchiveAttribute, {}});
    if (node->second.IsFolder() || (node->second.attributes & kReadOnlyAttribute) != 0)
        Throw(ErrorNumber::kPathFileAccess, path);
    node->second.bytes = bytes;
}

void FakeFileSystem::Remember(std::string_view operation, std::string_view path,
                              std::string_view destination) {
    std::string change = std::string(operation) + ' ' + Normal(path);
    if (!destination.empty()) change += " > " + Normal(destination);
    changes_.push_back(change);
}

std::optional<FileEntry> FakeFileSystem::Find(std::string_view path) const {
    const auto node = nodes_.find(Key(path));
    if (node == nodes_.end()) return std::nullopt;
    return FileEntry{node->second.name, node->second.attributes, node->second.bytes.size()};
}

std::vector<FileEntry> FakeFileSystem::List(std::string_view folder) const {
    Count(folder);
    RequireFolder(folder);
    std::vector<FileEntry> entries;
    for (const auto& [key, node] : Below(Key(folder))) {
        if (ParentOf(key) == Key(folder))
            entries.push_back({node.name, node.attributes, node.bytes.size()});
    }
    return entries;
}

std::string FakeFileSystem::ReadFile(std::string_view path) const {
    Count(path);
    return File(path).bytes;
}

void FakeFileSystem::WriteFile(std::string_view path, std::string_view bytes) {
    Count(path);
    Store(path, bytes);
    Remember("WriteFile", path);
}

void FakeFileSystem::AppendFile(std::string_view path, std::string_view bytes) {
    Count(path);
    const auto node = nodes_.find(Key(path));
    Store(path, (node == nodes_.end() ? std::string() : node->second.bytes) + std::string(bytes));
    Remember("AppendFile", path);
}

void FakeFileSystem::CopyFile(std::string_view source, std::string_view destination) {
    Count(source);
    Count(destination);
    Store(destination, std::string(File(source).bytes));
    Remember("CopyFile", source, destination);
}

void FakeFileSystem::MoveFile(std::string_view source, std::string_view destination) {
    Count(source);
    Count(destination);
    Node moved = File(source);
    Store(destination, moved.bytes);
    if (Key(source) != Key(destination)) nodes_.erase(Key(source));
    moved.name = NameIn(Normal(destination));
    nodes_[Key(destination)] = moved;
    Remember("MoveFile", source, destination);
}

void FakeFileSystem::DeleteFile(std::string_view path) {
    Count(path);
    if ((File(path).attributes & kReadOnlyAttribute) != 0)
        Throw(ErrorNumber::kPathFileAccess, path);
    nodes_.erase(Key(path));
    Remember("DeleteFile", path);
}

void FakeFileSystem::CreateFolder(std::string_view path) {
    Count(path);
    RequireFolder(ParentOf(Normal(path)));
    if (Find(path)) Throw(ErrorNumber::kFileExists, path);
    PutFolder(path);
    Remember("CreateFolder", path);
}

void FakeFileSystem::CopyFolder(std::string_view source, std::string_view destination) {
    Count(source);
    Count(destination);
    RequireFolder(source);
    RequireFolder(ParentOf(Normal(destination)));
    if (!HasFolder(destination)) PutFolder(destination);
    const std::string from = Key(source);
    for (const auto& [key, node] : Below(from)) {
        const std::string target =
            Normal(destination) + ParentOf(key).substr(from.size()) + '\\' + node.name;
        if (!node.IsFolder()) {
            CountDown(target);
            Store(target, node.bytes);
        } else if (!HasFolder(target)) {
            PutFolder(target);
        }
    }
    Remember("CopyFolder", source, destination);
}

void FakeFileSystem::DeleteFolder(std::string_view path) {
    Count(path);
    RequireFolder(path);
    const Nodes below = Below(Key(path));
    for (auto node = below.rbegin(); node != below.rend(); ++node) {
        CountDown(node->first);
        nodes_.erase(node->first);
    }
    nodes_.erase(Key(path));
    Remember("DeleteFolder", path);
}

}  // namespace morpho::test
