#include "windows_system/windows_error.h"

#include "windows_system/wide.h"

namespace morpho {

namespace {

ErrorNumber NumberOf(DWORD code) {
    switch (code) {
        case ERROR_FILE_NOT_FOUND:
            return ErrorNumber::kFileNotFound;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_DIRECTORY:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
            return ErrorNumber::kPathNotFound;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
            return ErrorNumber::kPermissionDenied;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return ErrorNumber::kDiskFull;
        case ERROR_ALREADY_EXISTS:
        case ERROR_FILE_EXISTS:
        case ERROR_DIR_NOT_EMPTY:
            return ErrorNumber::kFileExists;
        case ERROR_INVALID_NAME:
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_INVALID_PARAMETER:
            return ErrorNumber::kPathFileAccess;
        case ERROR_NOT_ENOUGH_MEMORY:
        case ERROR_OUTOFMEMORY:
            return ErrorNumber::kOutOfMemory;
        default:
            return ErrorNumber::kDeviceIo;
    }
}

// In the words of the other systems where there are such; else the system's own text.
std::string ReasonOf(DWORD code) {
    switch (code) {
        case ERROR_FILE_NOT_FOUND:
            return "it does not exist";
        case ERROR_PATH_NOT_FOUND:
            return "its folder does not exist";
        case ERROR_ACCESS_DENIED:
            return "permission is denied";
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
            return "another program has it open";
        case ERROR_WRITE_PROTECT:
            return "the disk is read-only";
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return "the disk is full";
        case ERROR_ALREADY_EXISTS:
        case ERROR_FILE_EXISTS:
            return "it exists already";
        default:
            break;
    }
    std::string text = SystemText(code);
    while (text.ends_with('.'))
        text.pop_back();
    return text.empty() ? "error " + std::to_string(code) : text;
}

}  // namespace

RunTimeError SystemError(DWORD code, std::string_view path, std::string_view failure) {
    return SystemError(NumberOf(code), path, failure, ReasonOf(code));
}

RunTimeError SystemError(ErrorNumber number, std::string_view path, std::string_view failure,
                         std::string_view reason) {
    std::string text = "\"" + std::string(path) + "\" ";
    text.append(failure).append(": ").append(reason).append(".");
    return {number, text};
}

std::string SystemText(DWORD code) {
    wchar_t text[512];
    const DWORD length =
        ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                         0, text, static_cast<DWORD>(std::size(text)), nullptr);
    std::string narrow = Narrow({text, length});
    while (!narrow.empty() && static_cast<unsigned char>(narrow.back()) <= ' ')
        narrow.pop_back();
    return narrow;
}

}  // namespace morpho
