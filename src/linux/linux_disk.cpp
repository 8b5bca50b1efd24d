#include "linux/linux_disk.h"

#include <unistd.h>

#include <filesystem>

#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "linux/linux_folder.h"
#include "linux/running_program.h"

namespace morpho {

namespace {

std::string Located(std::string_view path) {
    if (auto diskPath = FindOnDisk(path)) return *diskPath;
    throw FileError(ErrorNumber::kPathNotFound, path, "could not be opened",
                    "it is no path below \"Z:\\\"");
}

}  // namespace

std::unique_ptr<Folder> LinuxDisk::Open(std::string_view path) {
    return std::make_unique<LinuxFolder>(DiskFolder::Open(Located(path), true));
}

std::unique_ptr<Folder> LinuxDisk::OpenOrCreate(std::string_view path) {
    const std::string diskPath = Located(path);
    std::error_code error;
    std::filesystem::create_directories(diskPath, error);
    if (error) throw FileError(error.value(), diskPath, "could not be created");
    return Open(path);
}

std::string LinuxDisk::Machine() const {
    char name[256] = {};
    return ::gethostname(name, sizeof name - 1) == 0 ? name : "this machine";
}

std::uint64_t LinuxDisk::Program() const {
    return static_cast<std::uint64_t>(::getpid());
}

bool LinuxDisk::IsRunning(std::uint64_t program) const {
    return IsProgramRunning(program);
}

}  // namespace morpho
