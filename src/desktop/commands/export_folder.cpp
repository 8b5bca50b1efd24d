#include "desktop/commands/export_folder.h"

#include <unistd.h>

#include <string>

#include "desktop/commands/request.h"

namespace morpho {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Refuse(const std::string& sentence) {
    throw CommandError(CommandError::Status::kRefused, sentence);
}

}  // namespace

ExportFolder::ExportFolder(const fs::path& folder)
    : folder_(fs::absolute(folder / ".").lexically_normal().parent_path()) {
    std::error_code error;
    const fs::file_status status = fs::status(folder_, error);
    if (fs::is_directory(status)) {
        folder_ = fs::canonical(folder_, error);
        const bool empty = fs::is_empty(folder_, error);
        if (error) Refuse(folder_.string() + " cannot be looked into: " + error.message() + ".");
        if (!empty) Refuse(folder_.string() + " is not empty.");
    } else if (fs::exists(fs::symlink_status(folder_, error))) {
        Refuse(folder_.string() + " is not a folder.");
    } else if (!fs::is_directory(folder_.parent_path(), error)) {
        Refuse(folder_.parent_path().string() + " is not a folder that exists.");
    }
}

void ExportFolder::Fill(const fs::path& source) const {
    // The files gather beside the folder and take its place when all are there.
    const fs::path gathering = folder_.string() + ".part" + std::to_string(::getpid());
    std::error_code error;
    if (!fs::create_directory(gathering, error) && !error)
        error = std::make_error_code(std::errc::file_exists);
    if (!error) fs::copy(source, gathering, fs::copy_options::recursive, error);
    if (!error) fs::rename(gathering, folder_, error);
    if (error) {
        std::error_code ignored;
        fs::remove_all(gathering, ignored);
        Refuse(folder_.string() + " cannot be written: " + error.message() + ".");
    }
}

}  // namespace morpho
