#include "desktop/image_command.h"

#include "desktop/path_text.h"
#include "image_editor/frm_image_morpho.h"

namespace morpho {

namespace {

// The page of the request becomes the host's active one, with its picture selected.
void ActivatePage(DiskApplication& host, const ImageRequest& request) {
    const auto page = host.Session()->Files().Find(request.page, EntryKind::kFile);
    if (!page) throw Refusal("The web has no page \"" + request.page + "\".");
    std::optional<int> picture;
    if (request.selected > 0) picture = request.selected - 1;
    host.SetActivePage([=] { return ActivePage{*page, picture, {}}; });
    const std::unique_ptr<PageDocument> document = host.ActiveDocument();
    if (!document) throw Refusal("The page \"" + request.page + "\" cannot be read.");
    const int count = document->ImageCount();
    if (request.selected > count) {
        throw Refusal("The page \"" + request.page + "\" has " + std::to_string(count) +
                      (count == 1 ? " picture." : " pictures."));
    }
}

}  // namespace

void RequireImage(const ImageRequest& request) {
    std::error_code error;
    const bool isWeb = std::filesystem::is_directory(request.path, error);
    if (!request.path.empty() && !isWeb && !std::filesystem::is_regular_file(request.path, error))
        throw Refusal("There is no picture or folder \"" + TextOf(request.path) + "\".");
    if (!isWeb && !request.page.empty()) throw Refusal("--page: no web is named.");
}

void ShowImageWindow(const ImageRequest& request, EditorDesktop& here) {
    here.component.application = here.desktop.SharedFrontPage();
    frmImageMorpho window(here.program);
    if (std::filesystem::is_directory(request.path)) {
        here.desktop.OpenForSaving(here.system.AbsolutePath(request.path));
        if (!request.page.empty()) ActivatePage(here.desktop.FrontPage(), request);
    } else if (!request.path.empty()) {
        std::error_code error;
        const auto picture = here.system.RealPath(request.path, error);
        if (error) throw here.system.FileError(error, request.path, "could not be read");
        window.OpenAtStart({ImageKind::kDisk, here.system.PathInside(picture)});
    }
    window.ShowModal();
}

}  // namespace morpho
