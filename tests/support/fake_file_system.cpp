#include "support/fake_file_system.h"

#include <gtest/gtest.h>

#include "text/ignoring_case.h"

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
    return Folded(Normal(path));
}

std::string ParentOf(const std::string& normal) {
    const auto separator = normal.rfind('\\');
    return separator == std::string::npos ? std::string() : normal.substr(0, separator);
}

std::string NameIn(const std::string& normal) {
    return normal.substr(normal.rfind('\\') + 1);
}

[[noreturn]] void Throw(ErrorNumber number, std::string_view path) {
    throw RunTimeError(number, "Path/File access error: " + std::string(path));
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
    if (!HasFolder(ParentOf(normal))) PutFolder(ParentOf(normal));
    nodes_.try_emplace(Key(path), Node{NameIn(normal), attributes | kFolderAttribute, {}});
}

bool FakeFileSystem::HasFile(std::string_view path) const {
    return Find(path) && !HasFolder(path);
}

bool FakeFileSystem::HasFolder(std::string_view path) const {
    const auto entry = Find(path);
    return entry && entry->IsFolder();
}

std::string FakeFileSystem::Bytes(std::string_view path) const {
    EXPECT_TRUE(HasFile(path)) << path;
    return HasFile(path) ? nodes_.at(Key(path)).bytes : std::string();
}

std::vector<std::string> FakeFileSystem::FilesBelow(std::string_view folder) const {
    std::vector<std::string> files;
    for (const auto& [key, node] : Below(Key(folder))) {
        if (node.IsFolder()) continue;
        const std::string parent = ParentOf(key.substr(Key(folder).size() + 1));
        files.push_back(parent.empty() ? node.name : parent + '\\' + node.name);
    }
    return files;
}

void FakeFileSystem::FailOn(std::string_view path) {
    failingPaths_.insert(Key(path));
}

void FakeFileSystem::FailAt(int nth, bool staysBroken) {
    untilFailure_ = nth;
    staysBroken_ = staysBroken;
}

void FakeFileSystem::FailNoMore() {
    failingPaths_.clear();
    untilFailure_ = 0;
    failed_ = false;
}

void FakeFileSystem::CountDown(std::string_view path) const {
    if (untilFailure_ == 0 || --untilFailure_ > 0) return;
    if (staysBroken_) untilFailure_ = 1;
    failed_ = true;
    Throw(ErrorNumber::kPathFileAccess, path);
}

void FakeFileSystem::Count(std::string_view path) const {
    CountDown(path);
    if (failingPaths_.contains(Key(path))) Throw(ErrorNumber::kPathFileAccess, path);
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
    // "]" follows "\\".
    return {nodes_.lower_bound(key + '\\'), nodes_.lower_bound(key + ']')};
}

void FakeFileSystem::Store(std::string_view path, std::string_view bytes) {
    const std::string normal = Normal(path);
    RequireFolder(ParentOf(normal));
    const auto [node, added] =
        nodes_.try_emplace(Key(path), Node{NameIn(normal), kArchiveAttribute, {}});
    if (node->second.IsFolder()) Throw(ErrorNumber::kPathFileAccess, path);
    node->second.bytes = bytes;
}

std::optional<FileEntry> FakeFileSystem::Find(std::string_view path) const {
    const auto node = nodes_.find(Key(path));
    if (node == nodes_.end()) return std::nullopt;
    return node->second.Entry();
}

std::vector<FileEntry> FakeFileSystem::List(std::string_view folder) const {
    Count(folder);
    RequireFolder(folder);
    std::vector<FileEntry> entries;
    for (const auto& [key, node] : Below(Key(folder))) {
        if (ParentOf(key) == Key(folder)) entries.push_back(node.Entry());
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
}

std::string FakeFileSystem::ReadPart(std::string_view path, std::uint64_t offset,
                                     std::size_t count) const {
    const std::string bytes = ReadFile(path);
    return bytes.substr(static_cast<std::size_t>(std::min<std::uint64_t>(offset, bytes.size())),
                        count);
}

void FakeFileSystem::WriteFile(std::string_view path,
                               const std::function<void(const ByteSink&)>& write) {
    std::string bytes;
    write([&](std::string_view piece) { bytes += piece; });
    WriteFile(path, bytes);
}

void FakeFileSystem::AppendFile(std::string_view path, std::string_view bytes) {
    Count(path);
    Store(path, (HasFile(path) ? File(path).bytes : std::string()) + std::string(bytes));
}

void FakeFileSystem::Copy(std::string_view source, std::string_view destination) {
    Count(source);
    Count(destination);
    Store(destination, std::string(File(source).bytes));
}

void FakeFileSystem::Move(std::string_view source, std::string_view destination) {
    Count(source);
    Count(destination);
    const Node moved = File(source);
    Store(destination, moved.bytes);
    nodes_.erase(Key(source));
    nodes_[Key(destination)] = {NameIn(Normal(destination)), moved.attributes, moved.bytes};
}

void FakeFileSystem::Delete(std::string_view path) {
    Count(path);
    File(path);
    nodes_.erase(Key(path));
}

void FakeFileSystem::CreateFolder(std::string_view path) {
    Count(path);
    RequireFolder(ParentOf(Normal(path)));
    if (Find(path)) Throw(ErrorNumber::kFileExists, path);
    PutFolder(path);
}

void FakeFileSystem::CopyFolder(std::string_view source, std::string_view destination) {
    Count(source);
    Count(destination);
    RequireFolder(source);
    RequireFolder(ParentOf(Normal(destination)));
    PutFolder(destination);
    const std::string from = Key(source);
    for (const auto& [key, node] : Below(from)) {
        const std::string target =
            Normal(destination) + ParentOf(key).substr(from.size()) + '\\' + node.name;
        if (node.IsFolder()) {
            PutFolder(target);
        } else {
            CountDown(target);
            Store(target, node.bytes);
        }
    }
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
}

}  // namespace morpho::test
