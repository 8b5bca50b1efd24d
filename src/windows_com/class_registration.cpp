#include "windows_com/class_registration.h"

#include "windows_com/com_error.h"
#include "windows_system/wide.h"

namespace morpho {

namespace {

std::string ClassKey(const ComClass& comClass) {
    wchar_t text[40];
    ::StringFromGUID2(comClass.clsid, text, static_cast<int>(std::size(text)));
    return "Software\\Classes\\CLSID\\" + Narrow(text);
}

std::string ProgIdKey(const ComClass& comClass) {
    return "Software\\Classes\\" + std::string(comClass.progId);
}

void Write(const std::string& key, std::string_view name, DWORD type, const void* data,
           std::size_t size) {
    Check(HRESULT_FROM_WIN32(::RegSetKeyValueW(HKEY_CURRENT_USER, Wide(key).c_str(),
                                               Wide(name).c_str(), type, data,
                                               static_cast<DWORD>(size))));
}

}  // namespace

void RegisterClasses(std::span<const ComClass> classes, std::string_view dllPath) {
    for (const ComClass& comClass : classes) {
        const std::string key = ClassKey(comClass);
        const std::string clsid = key.substr(key.rfind('\\') + 1);
        WriteUserValue(key, "", comClass.description);
        WriteUserValue(key + "\\InprocServer32", "", dllPath);
        WriteUserValue(key + "\\InprocServer32", "ThreadingModel", "Apartment");
        WriteUserValue(key + "\\ProgID", "", comClass.progId);
        WriteUserValue(ProgIdKey(comClass), "", comClass.description);
        WriteUserValue(ProgIdKey(comClass) + "\\CLSID", "", clsid);
    }
}

void UnregisterClasses(std::span<const ComClass> classes) {
    for (const ComClass& comClass : classes) {
        DeleteUserKey(ClassKey(comClass));
        DeleteUserKey(ProgIdKey(comClass));
    }
}

void WriteUserValue(const std::string& key, std::string_view name, std::string_view text) {
    const std::wstring wide = Wide(text);
    Write(key, name, REG_SZ, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
}

void WriteUserValue(const std::string& key, std::string_view name, DWORD number) {
    Write(key, name, REG_DWORD, &number, sizeof number);
}

void DeleteUserKey(const std::string& key) {
    const LSTATUS code = ::RegDeleteTreeW(HKEY_CURRENT_USER, Wide(key).c_str());
    if (code != ERROR_FILE_NOT_FOUND) Check(HRESULT_FROM_WIN32(code));
}

}  // namespace morpho
