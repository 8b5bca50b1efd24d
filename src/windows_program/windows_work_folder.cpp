#include "windows_program/windows_work_folder.h"

#include <chrono>
#include <thread>

#include "desktop/path_text.h"
#include "windows_system/windows_disk.h"

namespace morpho {

namespace {

constexpr std::string_view kRunPrefix = "run-";
constexpr const char* kLockName = "lock";

// How long another program may need to make its work folder, which takes milliseconds.
constexpr auto kPatience = std::chrono::seconds(5);
constexpr auto kPause = std::chrono::milliseconds(5);

// One program at a time, so that none removes a folder that another has made but not yet locked.
// After the patience is over it goes on without: a folder that is lost makes the other one fail, no
// more.
std::unique_ptr<FolderLock> WaitForTurn(Folder& root) {
    const auto giveUp = std::chrono::steady_clock::now() + kPatience;
    std::string holder;
    auto turn = root.TryLock(kLockName, holder);
    while (!turn && std::chrono::steady_clock::now() < giveUp) {
        std::this_thread::sleep_for(kPause);
        turn = root.TryLock(kLockName, holder);
    }
    return turn;
}

}  // namespace

WindowsWorkFolder::WindowsWorkFolder(const std::string& root) {
    WindowsDisk disk;
    root_ = disk.OpenOrCreate(root);
    const std::unique_ptr<FolderLock> turn = WaitForTurn(*root_);
    RemoveAbandoned();
    Create(disk.Program());
}

WindowsWorkFolder::~WindowsWorkFolder() {
    lock_.reset();
    try {
        root_->RemoveFolder(name_);
    } catch (const std::exception&) {
        // The next start removes it.
        return;
    }
}

std::filesystem::path WindowsWorkFolder::Path() const {
    return PathOf(root_->PathOf(name_));
}

void WindowsWorkFolder::RemoveAbandoned() {
    for (const FolderEntry& entry : root_->Entries()) {
        if (entry.kind != EntryKind::kFolder || !entry.name.starts_with(kRunPrefix)) continue;
        try {
            std::string holder;
            const bool isFree = root_->Open(entry.name)->TryLock(kLockName, holder) != nullptr;
            if (isFree) root_->RemoveFolder(entry.name);
        } catch (const RunTimeError&) {
            // It stays for the next start.
            continue;
        }
    }
}

void WindowsWorkFolder::Create(std::uint64_t program) {
    const std::string stem = std::string(kRunPrefix) + std::to_string(program);
    name_ = stem;
    for (int serial = 2; root_->Find(name_); ++serial)
        name_ = stem + "-" + std::to_string(serial);
    const std::unique_ptr<Folder> folder = root_->Create(name_);
    std::string holder;
    lock_ = folder->TryLock(kLockName, holder);
    folder->Create("temp");
    folder->Create("cache");
}

}  // namespace morpho
