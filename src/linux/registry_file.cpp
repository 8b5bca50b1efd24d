#include "linux/registry_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <thread>

#include "formats/reg_text.h"
#include "linux/disk_folder.h"
#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "linux/whole_file.h"

namespace morpho {

namespace {

// How long another program may hold the file; changing it takes milliseconds.
constexpr auto kPatience = std::chrono::seconds(2);
constexpr auto kPause = std::chrono::milliseconds(5);

// Locks a second file instead of the file itself, because that one is replaced.
Descriptor Locked(const std::string& path) {
    const std::string beside = path + ".lock";
    Descriptor file(::open(beside.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!file.IsOpen()) throw FileError(errno, beside, "could not be opened");
    const auto giveUp = std::chrono::steady_clock::now() + kPatience;
    while (::flock(file.Number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EINTR && std::chrono::steady_clock::now() > giveUp)
            throw FileError(errno, beside, "could not be locked");
        std::this_thread::sleep_for(kPause);
    }
    return file;
}

}  // namespace

RegistryFile::RegistryFile(std::string diskPath, RegistryData machine)
    : MemoryRegistry(std::move(machine)), path_(std::move(diskPath)) {
    std::error_code error;
    const auto real = std::filesystem::weakly_canonical(path_, error);
    if (!error) path_ = real.string();
    try {
        user_ = Load();
    } catch (const RunTimeError&) {
        // Every setting has a default.
    }
}

std::int32_t RegistryFile::Change(const Work& work) {
    try {
        std::error_code ignored;
        std::filesystem::create_directories(ParentFolder(path_), ignored);
        const Descriptor lock = Locked(path_);
        RegistryData data = Load();
        const std::int32_t code = work(data);
        if (code == kRegSuccess) Save(data);
        user_ = std::move(data);
        return code;
    } catch (const RunTimeError& error) {
        return error.Number() == ErrorNumber::kPermissionDenied ? kRegAccessDenied : kRegWriteFault;
    }
}

// Only the user's keys: other keys in this file do not describe this machine.
RegistryData RegistryFile::Load() const {
    struct stat status = {};
    if (::stat(path_.c_str(), &status) != 0 && errno == ENOENT) return {};
    const DiskFolder folder = DiskFolder::Open(ParentFolder(path_), true);
    const Descriptor file = folder.OpenFile(std::string(LastName(path_)));
    RegistryData data;
    ReadRegText(ReadWhole(file, path_), data);
    data.RemoveKey(kClassesRootName);
    data.RemoveKey(kLocalMachineName);
    return data;
}

void RegistryFile::Save(const RegistryData& data) const {
    WholeFile file(path_, Durability::kFlushed);
    file.Write(WriteRegText(data));
    file.Commit();
}

}  // namespace morpho
