#include "program/image_command.h"

#include "image_editor/frm_image_morpho.h"
#include "program/qt_desktop.h"

namespace morpho {

namespace {

CommandError Refusal(const std::string& sentence) {
    return {CommandError::Status::kRefused, sentence};
}

}  // namespace

void ShowImageWindow(const ImageRequest& request) {
    std::error_code error;
    const bool isWeb = std::filesystem::is_directory(request.path, error);
    if (!request.path.empty() && !isWeb && !std::filesystem::is_regular_file(request.path, error))
        throw Refusal("There is no picture or folder \"" + request.path.string() + "\".");
    QtDesktop here;
    here.component.application = here.desktop.SharedFrontPage();
    frmImageMorpho window(here.program);
    if (isWeb)
        here.desktop.OpenForSaving(std::filesystem::absolute(request.path).lexically_normal());
    else if (!request.path.empty())
        window.OpenAtStart(
            {ImageKind::kDisk, ToWindowsPath(std::filesystem::canonical(request.path).string())});
    window.ShowModal();
}

}  // namespace morpho
