#include "web_window/web_watcher.h"

#include <QFileInfo>

namespace morpho {

namespace {

constexpr int kMaxWatched = 500;  // a user may have some thousands of watches on all programs
constexpr int kPauseMilliseconds = 250;

}  // namespace

WebWatcher::WebWatcher() {
    pause_.setSingleShot(true);
    pause_.setInterval(kPauseMilliseconds);
    connect(&pause_, &QTimer::timeout, this, &WebWatcher::Tell);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, &WebWatcher::Note);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &WebWatcher::Note);
}

void WebWatcher::Watch(const QStringList& paths) {
    const QStringList wanted = paths.mid(0, kMaxWatched);
    QStringList unwanted = watcher_.files() + watcher_.directories();
    QStringList missing;
    for (const QString& path : wanted) {
        if (!unwanted.removeOne(path) && QFileInfo::exists(path)) missing += path;
    }
    if (!unwanted.isEmpty()) watcher_.removePaths(unwanted);
    if (!missing.isEmpty()) watcher_.addPaths(missing);
}

void WebWatcher::Note(const QString& path) {
    if (!changed_.contains(path)) changed_ += path;
    pause_.start();
}

void WebWatcher::Tell() {
    QStringList changed;
    changed.swap(changed_);
    // A file that was replaced by renaming is a new one, and no longer watched.
    for (const QString& path : changed) {
        const bool isWatched =
            watcher_.files().contains(path) || watcher_.directories().contains(path);
        if (!isWatched && QFileInfo::exists(path)) watcher_.addPath(path);
    }
    emit Changed(changed);
}

}  // namespace morpho
