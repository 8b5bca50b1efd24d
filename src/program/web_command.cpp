#include "program/web_command.h"

#include <QApplication>
#include <algorithm>

#include "addin/add_in_im.h"
#include "addin/add_in_tm.h"
#include "image_editor/frm_image_morpho.h"
#include "qt/qt_text.h"
#include "text/ignoring_case.h"
#include "web_window/host_window.h"
#include "web_window/recent_webs.h"

namespace morpho {

namespace {

// The add-ins for as long as the host runs.
class ConnectedAddIns {
  public:
    ConnectedAddIns(const Program& program, const std::shared_ptr<Application>& host)
        : theme_(program),
          image_(program, [&program] { return std::make_unique<frmImageMorpho>(program); }) {
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

std::string FolderOf(const WebRequest& request, EditorDesktop& here) {
    if (!request.web.empty()) return here.system.AbsolutePath(request.web).string();
    const auto webs = RecentWebs(here.desktop.Parts());
    return webs.empty() ? std::string() : webs.front();
}

// After a save has given the web a theme: offers it to the pages that have kept the theme which it
// was made from.
void OfferTheme(HostWindow& window, DiskApplication& host) {
    const std::string source = host.SourceOfSave();
    const auto& kept = host.Session()->KeptThemes();
    const auto pages = std::find_if(kept.begin(), kept.end(), [&](const auto& theme) {
        return EqualIgnoringCase(theme.first, source);
    });
    if (pages == kept.end()) return;
    const std::string theme = host.ActiveWeb()->ThemeProperties(kThemeNameProperty);
    const QString question =
        QString(
            "Pages that name the theme \"%1\" themselves: %2.\nGive them the theme \"%3\", too?")
            .arg(ToQt(source))
            .arg(pages->second)
            .arg(ToQt(theme));
    window.AskLater(question, [&window, &host, theme, source] {
        try {
            host.ApplyInPlaceOf(theme, source);
        } catch (const RunTimeError& error) {
            window.Tell({error.what()});
        }
    });
}

}  // namespace

void ShowWebWindow(const WebRequest& request, QtDesktop& here) {
    DesktopPlatform& desktop = here.editors.desktop;
    const std::string folder = FolderOf(request, here.editors);
    const auto open = [&](const std::string& web) { desktop.OpenForSaving(web); };
    HostWindow window({desktop.FrontPage(), desktop.Parts(), here.toolkit.Pages(), open});
    desktop.FrontPage().SetReporter([&](const std::vector<std::string>& sentences) {
        // A save may have ended on another thread than the window's.
        QMetaObject::invokeMethod(&window, [&, sentences] {
            window.Tell(sentences);
            window.RefreshViews();
            OfferTheme(window, desktop.FrontPage());
        });
    });
    window.show();
    const ConnectedAddIns addIns(here.editors.program, desktop.SharedFrontPage());
    // A web that was named and cannot be opened is the command's error, not the window's.
    if (!request.web.empty()) {
        window.LoadWeb(folder);
    } else if (!folder.empty()) {
        window.OpenWeb(folder);
    } else {
        window.AskForWeb();
    }
    QApplication::exec();
}

}  // namespace morpho
