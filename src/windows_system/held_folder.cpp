#include "windows_system/held_folder.h"

#include "windows_system/full_path.h"
#include "windows_system/windows_error.h"

namespace morpho {

namespace {

FolderId IdOf(const FileHandle& folder) {
    BY_HANDLE_FILE_INFORMATION about = {};
    ::GetFileInformationByHandle(folder.Get(), &about);
    return {about.dwVolumeSerialNumber,
            std::uint64_t{about.nFileIndexHigh} << 32 | about.nFileIndexLow};
}

bool IsSameName(std::wstring_view a, std::wstring_view b) {
    return ::CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(),
                                  static_cast<int>(b.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace

HeldFolder::HeldFolder(std::wstring path, Links links, std::shared_ptr<std::recursive_mutex> mutex)
    : mutex_(std::move(mutex)),
      path_(std::move(path)),
      handle_(HoldFolder(path_, links)),
      id_(IdOf(handle_)) {}

std::shared_ptr<HeldFolder> HeldFolder::Open(const std::wstring& path) {
    return std::shared_ptr<HeldFolder>(
        new HeldFolder(path, Links::kFollowed, std::make_shared<std::recursive_mutex>()));
}

std::shared_ptr<HeldFolder> HeldFolder::OpenInner(const std::wstring& name) {
    const std::scoped_lock lock(*mutex_);
    std::erase_if(inner_, [](const auto& inner) { return inner.expired(); });
    std::shared_ptr<HeldFolder> inner(
        new HeldFolder(JoinPath(Path(), name), Links::kRefused, mutex_));
    inner_.push_back(inner);
    return inner;
}

std::wstring HeldFolder::Path() const {
    const std::scoped_lock lock(*mutex_);
    if (handle_.IsOpen()) return path_;
    throw SystemError(ErrorNumber::kPathNotFound, ShownPath(path_), "could not be opened",
                      "the folder does not exist");
}

void HeldFolder::ChangeInner(const std::wstring& name, const std::wstring& newName,
                             const std::function<void()>& change) {
    const std::scoped_lock lock(*mutex_);
    std::vector<std::shared_ptr<HeldFolder>> holders;
    for (const auto& inner : LiveInner()) {
        if (IsSameName(NameOf(inner->path_), name)) holders.push_back(inner);
    }
    for (const auto& holder : holders)
        holder->LetGo();
    try {
        change();
    } catch (...) {
        for (const auto& holder : holders)
            holder->HoldAgain(holder->path_);
        throw;
    }
    if (newName.empty()) return;
    for (const auto& holder : holders)
        holder->HoldAgain(JoinPath(path_, newName));
}

std::vector<std::shared_ptr<HeldFolder>> HeldFolder::LiveInner() const {
    std::vector<std::shared_ptr<HeldFolder>> live;
    for (const auto& inner : inner_) {
        if (auto folder = inner.lock()) live.push_back(std::move(folder));
    }
    return live;
}

void HeldFolder::LetGo() {
    handle_.Close();
    for (const auto& inner : LiveInner())
        inner->LetGo();
}

// Another program may have put another folder there meanwhile; that one is not held.
void HeldFolder::HoldAgain(const std::wstring& path) {
    path_ = path;
    try {
        FileHandle handle = HoldFolder(path, Links::kRefused);
        if (IdOf(handle) == id_) handle_ = std::move(handle);
    } catch (const RunTimeError&) {
        return;
    }
    for (const auto& inner : LiveInner())
        inner->HoldAgain(JoinPath(path, NameOf(inner->path_)));
}

}  // namespace morpho
