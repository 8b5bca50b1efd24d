#include "support/fake_registry.h"

#include "platform/ignoring_case.h"

namespace morpho::test {

namespace {

std::string Joined(const std::string& parent, std::string_view path) {
    while (!path.empty() && path.back() == '\\')
        path.remove_suffix(1);
    return path.empty() ? parent : parent + '\\' + Lowered(path);
}

bool IsRoot(RegHandle key) {
    return key == kClassesRoot || key == kCurrentUser || key == kLocalMachine;
}

}  // namespace

void FakeRegistry::PutString(RegHandle root, std::string_view path, std::string_view name,
                             std::string_view text) {
    Put(root, path, name, RegType::kString, std::as_bytes(std::span(text)));
}

void FakeRegistry::Put(RegHandle root, std::string_view path, std::string_view name, RegType type,
                       std::span<const std::byte> data) {
    const std::string key = Joined(std::to_string(root), path);
    AddKey(key);
    keys_[key][Lowered(name)] = {type, {data.begin(), data.end()}};
}

std::optional<std::string> FakeRegistry::Text(RegHandle root, std::string_view path,
                                              std::string_view name) const {
    const auto key = keys_.find(Joined(std::to_string(root), path));
    if (key == keys_.end()) return std::nullopt;
    const auto value = key->second.find(Lowered(name));
    if (value == key->second.end()) return std::nullopt;
    const auto& data = value->second.data;
    return std::string(reinterpret_cast<const char*>(data.data()), data.size());
}

std::optional<std::string> FakeRegistry::PathOf(RegHandle key) const {
    if (IsRoot(key)) return std::to_string(key);
    const auto handle = handles_.find(key);
    if (handle == handles_.end()) return std::nullopt;
    return handle->second;
}

void FakeRegistry::AddKey(const std::string& path) {
    for (auto end = path.find('\\'); end != std::string::npos; end = path.find('\\', end + 1))
        keys_[path.substr(0, end)];
    keys_[path];
}

RegHandle FakeRegistry::NewHandle(const std::string& path) {
    handles_[++lastHandle_] = path;
    return lastHandle_;
}

std::int32_t FakeRegistry::OpenKey(RegHandle root, std::string_view path, RegHandle& key) {
    ++calls_;
    const auto parent = PathOf(root);
    if (!parent) return kRegInvalidHandle;
    const std::string whole = Joined(*parent, path);
    if (!keys_.contains(whole) && whole != *parent) return kRegFileNotFound;
    key = NewHandle(whole);
    return kRegSuccess;
}

std::int32_t FakeRegistry::CreateKey(RegHandle root, std::string_view path, RegHandle& key) {
    ++calls_;
    const auto parent = PathOf(root);
    if (!parent) return kRegInvalidHandle;
    if (writeError_ != kRegSuccess) return writeError_;
    AddKey(Joined(*parent, path));
    key = NewHandle(Joined(*parent, path));
    return kRegSuccess;
}

std::int32_t FakeRegistry::CloseKey(RegHandle key) {
    ++calls_;
    if (closeError_ != kRegSuccess) return closeError_;
    if (IsRoot(key)) return kRegSuccess;
    return handles_.erase(key) == 1 ? kRegSuccess : kRegInvalidHandle;
}

std::int32_t FakeRegistry::QueryValue(RegHandle key, std::string_view name, RegType& type,
                                      std::vector<std::byte>& data) {
    ++calls_;
    const auto path = PathOf(key);
    if (!path) return kRegInvalidHandle;
    const auto& values = keys_[*path];
    const auto value = values.find(Lowered(name));
    if (value == values.end()) return kRegFileNotFound;
    type = value->second.type;
    data = value->second.data;
    return kRegSuccess;
}

std::int32_t FakeRegistry::SetValue(RegHandle key, std::string_view name, RegType type,
                                    std::span<const std::byte> data) {
    ++calls_;
    const auto path = PathOf(key);
    if (!path) return kRegInvalidHandle;
    if (writeError_ != kRegSuccess) return writeError_;
    keys_[*path][Lowered(name)] = {type, {data.begin(), data.end()}};
    return kRegSuccess;
}

std::int32_t FakeRegistry::DeleteValue(RegHandle key, std::string_view name) {
    ++calls_;
    const auto path = PathOf(key);
    if (!path) return kRegInvalidHandle;
    if (writeError_ != kRegSuccess) return writeError_;
    return keys_[*path].erase(Lowered(name)) == 1 ? kRegSuccess : kRegFileNotFound;
}

}  // namespace morpho::test
