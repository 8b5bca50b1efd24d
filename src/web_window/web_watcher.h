#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

namespace morpho {

// Tells when another program, or a save, has changed what is shown of a web. It watches a bounded
// number of files and folders, and waits until the changes pause.
class WebWatcher : public QObject {
    Q_OBJECT

  public:
    WebWatcher();

    // Watches these paths of the disk, and no others; the first of them where there are too many.
    void Watch(const QStringList& paths);

  signals:
    void Changed(const QStringList& paths);

  private:
    void Note(const QString& path);
    void Tell();

    QFileSystemWatcher watcher_;
    QTimer pause_;
    QStringList changed_;
};

}  // namespace morpho
