#include "web_host/theme_change_note.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>

#include "linux/disk_path.h"
#include "linux/file_error.h"
#include "linux/whole_file.h"

namespace morpho {

namespace {

// No theme's file: see IsBesideName.
constexpr std::string_view kFileName = ".morpho-change.tmp";
constexpr std::string_view kMaking = "making ";
constexpr std::string_view kApplying = "applying ";
constexpr off_t kMaxBytes = 1024;

std::string PathIn(const std::string& themesFolder) {
    return JoinDiskPath(themesFolder, kFileName);
}

std::string TextOf(const ThemeChange& change) {
    const std::string_view kind = change.kind == ThemeChange::Kind::kMaking ? kMaking : kApplying;
    return std::string(kind) + change.theme + '\n';
}

std::optional<ThemeChange> ChangeIn(std::string_view text) {
    if (!text.ends_with('\n')) return {};
    text.remove_suffix(1);
    const bool isMaking = text.starts_with(kMaking);
    if (!isMaking && !text.starts_with(kApplying)) return {};
    text.remove_prefix(isMaking ? kMaking.size() : kApplying.size());
    if (!IsEntryName(text)) return {};
    return ThemeChange{isMaking ? ThemeChange::Kind::kMaking : ThemeChange::Kind::kApplying,
                       std::string(text)};
}

// Whether the open file is no longer the one of this path: who held it before has removed it.
bool IsGone(const std::string& path, const struct stat& open) {
    struct stat there = {};
    return ::lstat(path.c_str(), &there) != 0 || open.st_ino != there.st_ino ||
           open.st_dev != there.st_dev;
}

}  // namespace

void ThemeChangeNote::Hold(const std::string& themesFolder, const ThemeChange& change) {
    if (!file_.IsOpen() && !Open(PathIn(themesFolder), O_CREAT)) {
        if (errno == EWOULDBLOCK)
            throw RunTimeError(ErrorNumber::kPermissionDenied,
                               "Another program is changing the themes of this web.");
        return;
    }
    const std::string text = TextOf(change);
    if (::lseek(file_.Number(), 0, SEEK_SET) != 0 || !WriteAll(file_.Number(), text) ||
        ::ftruncate(file_.Number(), static_cast<off_t>(text.size())) != 0 ||
        ::fsync(file_.Number()) != 0) {
        const RunTimeError error = FileError(errno, path_, "could not be written");
        Release();
        throw error;
    }
}

void ThemeChangeNote::Release() {
    if (!file_.IsOpen()) return;
    ::unlink(path_.c_str());
    file_.Close();
}

std::optional<ThemeChange> ThemeChangeNote::TakeOver(const std::string& themesFolder) {
    if (file_.IsOpen() || !Open(PathIn(themesFolder), 0)) return {};
    struct stat status = {};
    if (::fstat(file_.Number(), &status) != 0 || status.st_size > kMaxBytes) return {};
    return ChangeIn(ReadWhole(file_, path_));
}

// Opens and locks the file; otherwise false, with the reason in errno.
bool ThemeChangeNote::Open(const std::string& path, int flags) {
    for (;;) {
        Descriptor file(
            ::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | flags, 0666));
        struct stat status = {};
        if (!file.IsOpen() || ::fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode))
            return false;
        if (::flock(file.Number(), LOCK_EX | LOCK_NB) != 0) {
            const int reason = errno;
            // A disk that has no locks gets no note: nobody could tell whose it is.
            if (reason != EWOULDBLOCK && flags == O_CREAT) ::unlink(path.c_str());
            errno = reason;
            return false;
        }
        if (IsGone(path, status)) continue;
        path_ = path;
        file_ = std::move(file);
        return true;
    }
}

}  // namespace morpho
