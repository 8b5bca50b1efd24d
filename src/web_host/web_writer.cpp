#include "web_host/web_writer.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

#include "linux/file_error.h"
#include "linux/flush_files.h"
#include "linux/parallel.h"
#include "linux/whole_file.h"

namespace morpho {

namespace {

void WriteFile(const std::string& path, std::string_view bytes, Durability durability) {
    WholeFile file(path, durability);
    file.Write(bytes);
    file.Commit();
}

}  // namespace

void WebWriter::ReplaceFile(const std::string& path, std::string_view bytes) {
    WriteFile(path, bytes, Durability::kFlushed);
}

void WebWriter::ReplaceFiles(std::vector<FileChange>& changes) {
    DoAtOnce(changes.size(), [&](std::size_t i) {
        try {
            ReplaceFile(changes[i].path, changes[i].bytes);
            changes[i].isDone = true;
        } catch (const RunTimeError& error) {
            changes[i].failure = error;
        }
    });
}

void WebWriter::AddFile(const std::string& path, std::string_view bytes) {
    WriteFile(path, bytes, Durability::kUnflushed);
    unflushed_.push_back(path);
}

void WebWriter::Flush() {
    FlushFiles(std::exchange(unflushed_, {}));
}

void WebWriter::RemoveFile(const std::string& path) {
    if (::unlink(path.c_str()) != 0) throw FileError(errno, path, "could not be deleted");
}

void WebWriter::MakeFolder(const std::string& path) {
    if (::mkdir(path.c_str(), 0777) != 0) throw FileError(errno, path, "could not be created");
}

void WebWriter::RemoveFolder(const std::string& path) {
    std::error_code error;
    std::filesystem::remove_all(path, error);
    if (error) throw FileError(error.value(), path, "could not be deleted completely");
}

}  // namespace morpho
