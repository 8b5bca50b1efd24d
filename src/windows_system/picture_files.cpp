#include "windows_system/picture_files.h"

#include "windows_system/file_handle.h"
#include "windows_system/replacing_file.h"

namespace morpho {

bool ReplacePicture(const std::filesystem::path& from, const std::filesystem::path& to) {
    return MoveOver(from.native(), to.native(), Durability::kUnflushed);
}

std::uint64_t VersionOfFile(const std::filesystem::path& file) {
    const FileHandle open(::CreateFileW(
        file.c_str(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
        nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION about = {};
    if (!open.IsOpen() || !::GetFileInformationByHandle(open.Get(), &about)) return 0;
    const auto joined = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; };
    // A new file has another index; one that is written has another time, in 100 nanoseconds.
    constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
    return joined(about.nFileIndexHigh, about.nFileIndexLow) * kOdd +
           joined(about.ftLastWriteTime.dwHighDateTime, about.ftLastWriteTime.dwLowDateTime);
}

}  // namespace morpho
