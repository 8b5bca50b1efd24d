#include "shared/memory_registry.h"

#include <algorithm>

#include "text/ignoring_case.h"

namespace morpho {

namespace {

std::string_view RootName(RegHandle root) {
    switch (root) {
        case kClassesRoot:
            return kClassesRootName;
        case kCurrentUser:
            return kCurrentUserName;
        case kLocalMachine:
            return kLocalMachineName;
        default:
            return {};
    }
}

bool HasControlCharacters(std::string_view name) {
    return std::any_of(name.begin(), name.end(),
                       [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; });
}

}  // namespace

MemoryRegistry::MemoryRegistry(RegistryData machine, RegistryData user)
    : user_(std::move(user)), machine_(std::move(machine)) {}

std::int32_t MemoryRegistry::OpenKey(RegHandle root, std::string_view path, RegHandle& key) {
    std::string full;
    if (!PathBelow(root, path, full)) return kRegInvalidHandle;
    if (!Exists(full)) return kRegFileNotFound;
    key = Opened(full);
    return kRegSuccess;
}

std::int32_t MemoryRegistry::CreateKey(RegHandle root, std::string_view path, RegHandle& key) {
    std::string full;
    if (!PathBelow(root, path, full)) return kRegInvalidHandle;
    if (!Exists(full)) {
        if (HasControlCharacters(path)) return kRegInvalidParameter;
        if (const std::int32_t code = MayWrite(full)) return code;
        const auto add = [&](RegistryData& data) { return data.Add(full), kRegSuccess; };
        if (const std::int32_t code = Change(add)) return code;
    }
    key = Opened(full);
    return kRegSuccess;
}

std::int32_t MemoryRegistry::CloseKey(RegHandle key) {
    if (!RootName(key).empty()) return kRegSuccess;
    return open_.erase(key) > 0 ? kRegSuccess : kRegInvalidHandle;
}

std::int32_t MemoryRegistry::QueryValue(RegHandle key, std::string_view name, RegType& type,
                                        std::vector<std::byte>& data) {
    std::string path;
    if (!PathOf(key, path)) return kRegInvalidHandle;
    const RegistryValue* value = machine_.FindValue(path, name);
    if (!value) value = user_.FindValue(path, name);
    if (!value) return kRegFileNotFound;
    type = value->type;
    const auto bytes = std::as_bytes(std::span(value->data));
    data.assign(bytes.begin(), bytes.end());
    return kRegSuccess;
}

std::int32_t MemoryRegistry::SetValue(RegHandle key, std::string_view name, RegType type,
                                      std::span<const std::byte> data) {
    std::string path;
    if (!PathOf(key, path)) return kRegInvalidHandle;
    if (HasControlCharacters(name)) return kRegInvalidParameter;
    if (const std::int32_t code = MayWrite(path)) return code;
    const std::string bytes(reinterpret_cast<const char*>(data.data()), data.size());
    return Change([&](RegistryData& user) {
        user.Set(path, {std::string(name), type, bytes});
        return kRegSuccess;
    });
}

std::int32_t MemoryRegistry::DeleteValue(RegHandle key, std::string_view name) {
    std::string path;
    if (!PathOf(key, path)) return kRegInvalidHandle;
    if (const std::int32_t code = MayWrite(path)) return code;
    return Change([&](RegistryData& user) {
        return user.RemoveValue(path, name) ? kRegSuccess : kRegFileNotFound;
    });
}

std::int32_t MemoryRegistry::Change(const Work& work) {
    return work(user_);
}

bool MemoryRegistry::PathOf(RegHandle key, std::string& path) const {
    path = RootName(key);
    if (!path.empty()) return true;
    const auto open = open_.find(key);
    if (open == open_.end()) return false;
    path = open->second;
    return true;
}

bool MemoryRegistry::PathBelow(RegHandle root, std::string_view path, std::string& full) const {
    if (!PathOf(root, full)) return false;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('\\'), path.size());
        if (end > 0) full.append("\\").append(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return true;
}

bool MemoryRegistry::Exists(const std::string& path) const {
    return path.find('\\') == path.npos || machine_.Find(path) || user_.Find(path);
}

std::int32_t MemoryRegistry::MayWrite(const std::string& path) const {
    const RegistryKey* fixed = machine_.Find(path);
    const bool ofUser =
        StartsWithIgnoringAsciiCase(path + '\\', std::string(kCurrentUserName) + '\\');
    return ofUser && (!fixed || fixed->values.empty()) ? kRegSuccess : kRegAccessDenied;
}

RegHandle MemoryRegistry::Opened(const std::string& path) {
    open_[++lastHandle_] = path;
    return lastHandle_;
}

}  // namespace morpho
