#include "program/web_command.h"

#include <QApplication>
#include <QEventLoop>

#include "addin/add_in_im.h"
#include "addin/add_in_tm.h"
#include "forms/controls.h"
#include "program/desktop_platform.h"
#include "program/qt_program.h"
#include "qt/qt_clipboard.h"
#include "qt/qt_toolkit.h"
#include "resources/embedded_resources.h"
#include "resources/resource_ids.h"
#include "shared/log.h"
#include "shared/logged_form.h"
#include "web_window/host_window.h"
#include "web_window/recent_webs.h"

namespace morpho {

namespace {

// Stands in the image editor's place until there is one.
class ImageEditorNotice : public LoggedForm {
  public:
    explicit ImageEditorNotice(const Program& program)
        : LoggedForm(
              program,
              {.name = "ImageEditorNotice", .caption = "Image Morpho", .inner = {4800, 1400}}) {}

    Label lblMessage{
        *this, {"lblMessage", {240, 240, 4200, 480}, "Image Morpho is not part of this version."}};
    CommandButton btnOK{*this,
                        {"btnOK", {1800, 780, 1125, 375}, "OK"},
                        [this] { Unload(); },
                        ButtonRole::kDefaultAndCancel};
};

// The add-ins for as long as the host runs.
class ConnectedAddIns {
  public:
    ConnectedAddIns(const Program& program, const std::shared_ptr<Application>& host)
        : theme_(program),
          image_(program, [&program] { return std::make_unique<ImageEditorNotice>(program); }) {
        theme_.OnConnection(host);
        image_.OnConnection(host);
    }
    ~ConnectedAddIns() {
        image_.OnDisconnection();
        theme_.OnDisconnection();
    }
    ConnectedAddIns(const ConnectedAddIns&) = delete;
    ConnectedAddIns& operator=(const ConnectedAddIns&) = delete;

  private:
    AddInTM theme_;
    AddInIM image_;
};

std::string FolderOf(const WebRequest& request, const Platform& platform) {
    if (!request.web.empty())
        return std::filesystem::absolute(request.web).lexically_normal().string();
    const auto webs = RecentWebs(platform);
    return webs.empty() ? std::string() : webs.front();
}

}  // namespace

void ShowWebWindow(const WebRequest& request) {
    const QtProgram qt;
    const DiskFileSystem pages;
    const EmbeddedResources resources;
    QtToolkit toolkit(pages, resources.Bytes(kIconResource, kApplicationIcon128));
    QtClipboard clipboard;
    DesktopPlatform desktop(DesktopUse::kWindows, FindUserFolders(EnvironmentVariable), toolkit,
                            resources, clipboard, request.hostVersion);
    const std::string folder = FolderOf(request, desktop.Parts());
    const auto open = [&](const std::string& web) { desktop.OpenForSaving(web); };
    // A folder that is not there is the command's error, not the window's.
    if (!request.web.empty() && !std::filesystem::is_directory(folder)) {
        throw CommandError(CommandError::Status::kRefused,
                           "There is no folder \"" + folder + "\".");
    }
    HostWindow window({desktop.FrontPage(), desktop.Parts(), toolkit.Pages(), open});
    Component component;
    const Program program{desktop.Parts(), component};
    desktop.FrontPage().SetReporter([&](const std::vector<std::string>& sentences) {
        // A save may have ended on another thread than the window's.
        QMetaObject::invokeMethod(&window, [&window, sentences] {
            window.Tell(sentences);
            window.RefreshViews();
        });
    });
    desktop.FrontPage().SetLog([&](std::string_view line) { WriteLog(program, line); });
    window.show();
    const ConnectedAddIns addIns(program, desktop.SharedFrontPage());
    if (folder.empty() ? window.AskForWeb() : window.OpenWeb(folder)) QApplication::exec();
}

}  // namespace morpho
