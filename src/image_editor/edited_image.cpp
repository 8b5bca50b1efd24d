#include "image_editor/edited_image.h"

#include "frontpage/mod_fpole.h"
#include "platform/colorizer.h"
#include "platform/file_system.h"
#include "platform/front_page.h"
#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "shared/log.h"
#include "shared/mod_shared_code.h"

namespace morpho {

namespace {

// More folders than this are left only by a program that cannot delete any.
constexpr int kMaxFolders = 1000;

}  // namespace

bool EditedImage::IsJpeg() const {
    return IsJpegFile(fileName_);
}

std::string EditedImage::WorkingCopy() const {
    return program_.platform.files.ReadFile(workingCopyPath_);
}

// A folder that did not exist before: the temporary folder is the user's and may hold a file named
// like the picture, or the picture itself.
void EditedImage::CreateFolder() {
    FileSystem& files = program_.platform.files;
    for (int number = 0; number < kMaxFolders; ++number) {
        const std::string folder =
            tempPath_ + "Image Morpho" + (number == 0 ? "" : std::to_string(number));
        if (files.Find(folder)) continue;
        files.CreateFolder(folder);
        folder_ = folder + "\\";
        return;
    }
    throw RunTimeError(ErrorNumber::kPathFileAccess,
                       "The temporary folder " + tempPath_ + " is full of abandoned copies.");
}

bool EditedImage::Open(const ImageLocation& image) {
    location_ = image;
    fileName_ = FileNameOfImage(image);
    try {
        CreateFolder();
        sourceCopyPath_ = folder_ + fileName_;
        workingCopyPath_ = folder_ + "Temp" + fileName_;
        if (!Fetch()) {
            Close();
            return false;
        }
        Restore();
        return true;
    } catch (const RunTimeError&) {
        Close();
        throw;
    }
}

bool EditedImage::Fetch() {
    if (location_.kind == ImageKind::kWeb)
        return FPGetDocToFile(program_, location_.address, sourceCopyPath_) != 0;
    program_.platform.files.Copy(location_.address, sourceCopyPath_);
    return true;
}

void EditedImage::Close() {
    FileSystem& files = program_.platform.files;
    try {
        if (!folder_.empty() && FolderExists(files, folder_)) files.DeleteFolder(folder_);
    } catch (const RunTimeError&) {
        // A later picture gets another folder; a later start deletes what is left.
    }
    folder_.clear();
    sourceCopyPath_.clear();
    workingCopyPath_.clear();
    fileName_.clear();
    location_ = {};
}

void EditedImage::Recolour(const ElementAdjustment& adjustment, std::int16_t quality) {
    const Recolouring wanted{adjustment, quality};
    if (shown_ == wanted) return;
    const std::unique_ptr<Colorizer> colorizer = program_.platform.colorizers.Create();
    colorizer->SetHue(adjustment.Hue);
    colorizer->SetSaturation(adjustment.Saturation);
    colorizer->SetAuxParameter1(0.0);
    colorizer->SetBrightness(adjustment.Brightness);
    colorizer->SetAuxParameter2(0.0);
    colorizer->SetDestinationFile(workingCopyPath_);
    colorizer->SetSourceFile(sourceCopyPath_);
    if (IsJpeg()) colorizer->SetQuality(quality);
    colorizer->Colorize();
    shown_ = wanted;
}

void EditedImage::Restore() {
    shown_.reset();
    program_.platform.files.Copy(sourceCopyPath_, workingCopyPath_);
}

void EditedImage::Save() {
    FileSystem& files = program_.platform.files;
    if (location_.kind == ImageKind::kWeb) {
        WriteLog(program_, "Saving web image...");
        PutIntoWeb();
    } else {
        WriteLog(program_, "Saving disk image...");
        files.Copy(workingCopyPath_, location_.address);
    }
    // Only now: had the save failed, the next recolouring would start from a recoloured picture.
    files.Copy(workingCopyPath_, sourceCopyPath_);
    shown_.reset();
}

// The host imports a file under the name that it has on disk.
void EditedImage::PutIntoWeb() {
    FileSystem& files = program_.platform.files;
    const std::string import = folder_ + "Import" + fileName_;  // the copies have other names
    if (!FolderExists(files, import)) files.CreateFolder(import);
    const std::string file = import + "\\" + fileName_;
    files.Copy(workingCopyPath_, file);
    const std::unique_ptr<Web> web = program_.component.application->ActiveWeb();
    const auto folder = web ? web->LocateFolder(FolderOfImage(location_)) : nullptr;
    if (!folder) {
        throw RunTimeError(ErrorNumber::kPathNotFound,
                           "The web has no folder " + FolderOfImage(location_) + ".");
    }
    folder->AddFile(file, true);
}

void EditedImage::SaveAs(const ImageLocation& place) {
    const ImageLocation earlier = location_;
    const std::string earlierName = fileName_;
    location_ = place;
    fileName_ = FileNameOfImage(place);
    try {
        Save();
    } catch (const std::exception&) {
        location_ = earlier;
        fileName_ = earlierName;
        throw;
    }
}

}  // namespace morpho
