#pragma once

#include <span>
#include <string>

#include "windows_com/class_factory.h"

namespace morpho {

// Registers the classes of an in-process server for the current user, for programs of as many bits
// as this one. Throws RunTimeError.
void RegisterClasses(std::span<const ComClass> classes, std::string_view dllPath);
// Takes the registration back. What is not registered is left out.
void UnregisterClasses(std::span<const ComClass> classes);

// Below the current user's key: writes a value (an empty name is the key's own), and deletes a key
// with all that is in it. Throw RunTimeError.
void WriteUserValue(const std::string& key, std::string_view name, std::string_view text);
void WriteUserValue(const std::string& key, std::string_view name, DWORD number);
void DeleteUserKey(const std::string& key);

}  // namespace morpho
