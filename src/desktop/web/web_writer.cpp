#include "desktop/web/web_writer.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "desktop/disk/file_error.h"
#include "desktop/disk/whole_file.h"

namespace morpho {

void WebWriter::ReplaceFile(const std::string& path, std::string_view bytes) {
    WholeFile file(path, Durability::kFlushed);
    file.Write(bytes);
    file.Commit();
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
