#include "shared/reg_key.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "platform/environment.h"
#include "platform/platform.h"
#include "shared/mod_shared_code.h"

namespace morpho {

namespace {

// The system's code for data of an unsupported type (ERROR_INVALID_DATA).
constexpr std::int32_t kRegInvalidData = 13;

bool IsStringType(RegType type) {
    return type == RegType::kString || type == RegType::kExpandString || type == RegType::kLink ||
           type == RegType::kMultiString;
}

std::string TextOf(const std::vector<std::byte>& data) {
    std::string text(reinterpret_cast<const char*>(data.data()), data.size());
    TrimAtNul(text, false);
    return text;
}

}  // namespace

RegKey::~RegKey() {
    if (key_ != 0) CloseKey();
}

std::string RegKey::GetErrorDescription() const {
    std::string message = environment_.SystemMessage(systemError_);
    TrimAtNul(message, false);
    switch (status_) {
        case kSystem:
            return message;
        case kNoKey:
            return "Internal error: Registry operation without opening a key.";
        case kCannotClose:
            return "Internal error: Failed to close previous key.\r\n" + message;
        case kWrongType:
            return "Internal error: Data type supplied is invalid.";
        case kBufferTooSmall:
            return "Insufficient buffer length. Please supplu more buffer.";
        default:
            return {};
    }
}

bool RegKey::Fail(Status status) {
    status_ = status;
    if (status != kCannotClose) systemError_ = kRegSuccess;
    return false;
}

bool RegKey::Done(std::int32_t systemError) {
    status_ = kSystem;
    systemError_ = systemError;
    return systemError == kRegSuccess;
}

bool RegKey::CloseKey() {
    if (key_ == 0) return Fail(kNoKey);
    if (!Done(registry_.CloseKey(key_))) return false;
    key_ = 0;
    return true;
}

bool RegKey::CloseBefore() {
    return key_ == 0 || CloseKey() || Fail(kCannotClose);
}

void RegKey::SetHKey(RegHandle key) {
    if (!CloseBefore()) return;
    Done(kRegSuccess);
    key_ = key;
}

bool RegKey::CreateKey(RegHandle root, std::string_view path) {
    if (!CloseBefore()) return false;
    RegHandle created = 0;
    if (!Done(registry_.CreateKey(root, path, created))) return false;
    key_ = created;
    return true;
}

bool RegKey::OpenKey(RegHandle root, std::string_view path) {
    if (!CloseBefore()) return false;
    RegHandle opened = 0;
    if (!Done(registry_.OpenKey(root, path, opened))) return false;
    key_ = opened;
    return true;
}

RegHandle RegKey::Choose(RegHandle key) {
    const RegHandle chosen = key != 0 ? key : key_;
    if (chosen == 0) Fail(kNoKey);
    return chosen;
}

bool RegKey::QueryValue(std::string_view path, std::string& value, RegHandle key) {
    const RegHandle parent = Choose(key);
    if (parent == 0) return false;
    RegHandle subkey = 0;
    if (!Done(registry_.OpenKey(parent, path, subkey))) return false;
    RegType type = RegType::kString;
    std::vector<std::byte> data;
    std::int32_t error = registry_.QueryValue(subkey, {}, type, data);
    registry_.CloseKey(subkey);
    // A missing default value reads as an empty one.
    if (error == kRegFileNotFound) error = kRegSuccess;
    if (error == kRegSuccess && !IsStringType(type)) error = kRegInvalidData;
    if (!Done(error)) return false;
    value = TextOf(data);
    return true;
}

bool RegKey::QueryValueEx(std::string_view name, std::span<std::byte> buffer, RegType& type,
                          RegHandle key) {
    const RegHandle chosen = Choose(key);
    if (chosen == 0) return false;
    std::vector<std::byte> data;
    if (!Done(registry_.QueryValue(chosen, name, type, data))) return false;
    if (data.size() > buffer.size()) {
        errorData_ = static_cast<std::int32_t>(
            std::min<std::size_t>(data.size(), std::numeric_limits<std::int32_t>::max()));
        return Fail(kBufferTooSmall);
    }
    std::copy(data.begin(), data.end(), buffer.begin());
    return true;
}

bool RegKey::QueryValueEx_SZ(std::string_view name, std::string& value, RegHandle key) {
    const RegHandle chosen = Choose(key);
    if (chosen == 0) return false;
    RegType type = RegType::kString;
    std::vector<std::byte> data;
    if (!Done(registry_.QueryValue(chosen, name, type, data))) return false;
    if (type != RegType::kString) return Fail(kWrongType);
    value = TextOf(data);
    return true;
}

bool RegKey::SetValueEx(std::string_view name, RegType type, std::span<const std::byte> data,
                        RegHandle key) {
    const RegHandle chosen = Choose(key);
    if (chosen == 0) return false;
    if (IsStringType(type)) return Fail(kWrongType);
    return Done(registry_.SetValue(chosen, name, type, data));
}

bool RegKey::SetValueEx_SZ(std::string_view name, std::string_view value, RegType type,
                           RegHandle key) {
    const RegHandle chosen = Choose(key);
    if (chosen == 0) return false;
    if (!IsStringType(type)) return Fail(kWrongType);
    std::string data(value);
    if (environment_.Os().platformId == kWindows9xPlatform) data += '\0';
    return Done(registry_.SetValue(chosen, name, type, std::as_bytes(std::span(data))));
}

bool GetRegString(const Platform& platform, RegHandle hive, std::string_view path,
                  std::string_view name, std::string& value) {
    RegKey key(platform.registry, platform.environment);
    return key.OpenKey(hive, path) && key.QueryValueEx_SZ(name, value);
}

}  // namespace morpho
