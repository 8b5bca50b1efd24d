#pragma once

#include <QDateTime>
#include <QStringList>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "web_host/web_files.h"

namespace morpho {

// Gives a page view the files of the web, and knows which of them have changed on the disk since.
class PageFiles {
  public:
    explicit PageFiles(std::shared_ptr<const WebFiles> web) : web_(std::move(web)) {}

    // The file at these names, without regard to case. Throws RunTimeError when there is none.
    std::string Read(const WebPath& names);
    // Forgets what was read.
    void Clear() { read_.clear(); }
    // The paths of the disk that were read, also of files that are missing.
    QStringList Paths() const;
    // Whether a file has changed, came or went since it was read.
    bool HaveChanged() const;

  private:
    struct Stamp {
        qint64 size = -1;  // bytes; -1: there is no such file
        QDateTime modified = {};

        bool operator==(const Stamp&) const = default;
    };

    static Stamp StampOf(const QString& path);

    std::shared_ptr<const WebFiles> web_;
    std::map<QString, Stamp> read_;  // by path of the disk
};

// The names of the file that an address of the web leads to, as spelled on the disk; a folder leads
// to its home page. Nothing when there is no such file.
std::optional<WebPath> FindFile(const WebFiles& web, const WebPath& names);

}  // namespace morpho
