#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/registry.h"

namespace morpho {

class Environment;
struct Platform;

// Holds at most one open registry key, which is closed with the object. No member throws: each
// operation returns whether it succeeded, and GetLastError and GetErrorDescription give the reason
// of a failure.
class RegKey {
  public:
    // The outcome of an operation. kSystem: it is in the registry's error code.
    enum Status : std::int32_t {
        kSystem = 0,
        kNoKey = -1,
        kCannotClose = -2,
        kWrongType = -3,
        kBufferTooSmall = -4,
    };

    RegKey(Registry& registry, const Environment& environment)
        : registry_(registry), environment_(environment) {}
    ~RegKey();
    RegKey(const RegKey&) = delete;
    RegKey& operator=(const RegKey&) = delete;

    // After kBufferTooSmall: the size in bytes that the value needs.
    std::int32_t GetErrorData() const { return errorData_; }
    std::string GetErrorDescription() const;
    // The status, or the registry's error code when the status is kSystem.
    std::int32_t GetLastError() const { return status_ != kSystem ? status_ : systemError_; }

    // The open key; 0 when there is none. SetHKey takes ownership of the key.
    RegHandle hKey() const { return key_; }
    void SetHKey(RegHandle key);

    bool CloseKey();
    // These first close the open key.
    bool CreateKey(RegHandle root, std::string_view path);
    bool OpenKey(RegHandle root, std::string_view path);

    // The operations below work on `key` (which may be a predefined root), or on the open key when
    // it is 0.

    // The default value of the subkey; empty when the subkey has none.
    bool QueryValue(std::string_view path, std::string& value, RegHandle key = 0);
    // Any value, into the caller's buffer; the rest of the buffer is unchanged.
    bool QueryValueEx(std::string_view name, std::span<std::byte> buffer, RegType& type,
                      RegHandle key = 0);
    // A plain string, up to its first NUL.
    bool QueryValueEx_SZ(std::string_view name, std::string& value, RegHandle key = 0);
    // Every type except the string types.
    bool SetValueEx(std::string_view name, RegType type, std::span<const std::byte> data,
                    RegHandle key = 0);
    // The string types. The terminating NUL is stored on Windows 9x only.
    bool SetValueEx_SZ(std::string_view name, std::string_view value,
                       RegType type = RegType::kString, RegHandle key = 0);

  private:
    bool CloseBefore();
    bool Fail(Status status);
    bool Done(std::int32_t systemError);
    // The handle to use; 0, with the status set, when there is none.
    RegHandle Choose(RegHandle key);

    Registry& registry_;
    const Environment& environment_;
    RegHandle key_ = 0;
    std::int32_t systemError_ = kRegSuccess;
    std::int32_t status_ = kSystem;
    std::int32_t errorData_ = 0;
};

// The key below HKEY_CURRENT_USER that holds the user's special folders by name ("AppData",
// "Cache").
inline constexpr std::string_view kShellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

// Reads a plain string value; false, with `value` unchanged, when the key or the string is missing.
bool GetRegString(const Platform& platform, RegHandle hive, std::string_view path,
                  std::string_view name, std::string& value);

}  // namespace morpho
