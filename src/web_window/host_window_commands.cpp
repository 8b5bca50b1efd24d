// The commands of the host's own in its menus. The add-ins add theirs.

#include <QAction>
#include <QInputDialog>
#include <QMessageBox>
#include <QTabWidget>
#include <QTreeView>

#include "platform/environment.h"
#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "platform/shell.h"
#include "qt/qt_text.h"
#include "text/ignoring_case.h"
#include "web_host/disk_application.h"
#include "web_host/page_walk.h"
#include "web_host/theme_of_page.h"
#include "web_window/host_window.h"
#include "web_window/recent_webs.h"

namespace morpho {

namespace {

constexpr int kOpenWebId = 23;
constexpr int kCloseId = 106;
constexpr int kExitId = 752;
constexpr int kRefreshId = 459;
constexpr int kRecentId = 30126;
constexpr int kHelpId = 984;
constexpr int kAboutId = 927;
// FrontPage has no commands of these numbers.
constexpr int kThemeOfPageId = 40001;
constexpr int kRecalculateId = 40002;
constexpr int kOtherPaneId = 40003;
constexpr int kBackId = 40004;
constexpr int kNextPictureId = 40005;
constexpr int kPreviousPictureId = 40006;

}  // namespace

void HostWindow::AddCommands() {
    AddCommand(HostMenu::kFile, {kOpenWebId, "&Open Web...", QKeySequence::Open},
               [this] { AskForWeb(); });
    recentWebs_ =
        host_.frontPage.HostBars()
            .Menu(HostMenu::kFile)
            .Append({.type = kPopupControl, .id = kRecentId, .look = {.caption = "&Recent Webs"}});
    AddPageCommand(HostMenu::kFile, {kCloseId, "&Close Page", QKeySequence("Ctrl+W")},
                   [this] { CloseTab(tabs_->currentIndex()); });
    AddWebCommand(HostMenu::kFile, {kRecalculateId, "Recalculate &Hyperlinks", {}, true},
                  [this] { RecalculateHyperlinks(); });
    AddCommand(HostMenu::kFile, {kExitId, "E&xit", QKeySequence("Ctrl+Q"), true},
               [this] { close(); });
    AddViewCommands();
    AddPageCommand(HostMenu::kFormat, {kThemeOfPageId, "Theme of This &Page...", {}},
                   [this] { AskForThemeOfPage(); });
    AddCommand(HostMenu::kHelp, {kHelpId, "Morpho &Help", QKeySequence("F1")},
               [this] { ShowHelp(); });
    AddCommand(HostMenu::kHelp, {kAboutId, "&About Morpho", {}, true}, [this] { ShowAbout(); });
    FillRecentWebs();
}

void HostWindow::AddViewCommands() {
    AddWebCommand(HostMenu::kView, {kRefreshId, "&Refresh", QKeySequence("F5")},
                  [this] { RefreshViews(); });
    AddWebCommand(HostMenu::kView, {kOtherPaneId, "&Other Pane", QKeySequence("F6")},
                  [this] { FocusOtherPane(); });
    AddPageCommand(HostMenu::kView, {kBackId, "&Back", QKeySequence("Alt+Left"), true},
                   [this] { CurrentPage()->back(); });
    AddPageCommand(HostMenu::kView, {kNextPictureId, "Select &Next Picture", QKeySequence("F8")},
                   [this] { CurrentPage()->StepPicture(1); });
    AddPageCommand(HostMenu::kView,
                   {kPreviousPictureId, "Select &Previous Picture", QKeySequence("Shift+F8")},
                   [this] { CurrentPage()->StepPicture(-1); });
}

std::shared_ptr<HostControl> HostWindow::AddCommand(HostMenu menu, const Command& command,
                                                    std::function<void()> clicked) {
    auto control = host_.frontPage.HostBars().Menu(menu).Append(
        {.id = command.id,
         .look = {.caption = command.caption, .beginsGroup = command.beginsGroup}});
    clicks_.push_back(control->OnClick(std::move(clicked)));
    bars_.ActionOf(*control)->setShortcut(command.keys);
    return control;
}

void HostWindow::AddPageCommand(HostMenu menu, const Command& command,
                                std::function<void()> clicked) {
    pageCommands_.push_back(AddCommand(menu, command, std::move(clicked)));
}

void HostWindow::AddWebCommand(HostMenu menu, const Command& command,
                               std::function<void()> clicked) {
    webCommands_.push_back(AddCommand(menu, command, std::move(clicked)));
}

void HostWindow::EnableCommands() {
    for (const auto& command : webCommands_)
        command->Set(&HostControlLook::isEnabled, model_ != nullptr);
    for (const auto& command : pageCommands_)
        command->Set(&HostControlLook::isEnabled, tabs_->count() > 0);
}

void HostWindow::ShowHelp() {
    constexpr int kHighestFailure = 31;
    if (host_.platform.shell.WinExec("Winhlp32.exe morpho.hlp", 1) <= kHighestFailure)
        Tell({"The help cannot be opened: its page, or a browser, is missing."});
}

void HostWindow::ShowAbout() {
    const ComponentVersion version = host_.platform.environment.Version();
    QMessageBox::about(this, "About Morpho",
                       QString("<b>Morpho</b><p>Version %1.%2.%3<p>Recolours the themes and "
                               "pictures of FrontPage webs.<br>This window shows a web folder.")
                           .arg(version.major)
                           .arg(version.minor)
                           .arg(version.revision));
}

void HostWindow::FocusOtherPane() {
    QWidget* const page = tabs_->currentWidget();
    (tree_->hasFocus() && page ? page : tree_)->setFocus(Qt::ShortcutFocusReason);
}

void HostWindow::RecalculateHyperlinks() {
    const auto web = host_.frontPage.ActiveWeb();
    if (!web) return;
    try {
        web->RecalcHyperlinks();
        Tell({"The hyperlinks to themes are recalculated; the log has the broken ones."});
    } catch (const RunTimeError& error) {
        Tell({error.what()});
    }
}

void HostWindow::AskForThemeOfPage() {
    constexpr int kWidth = 320;  // pixels; the title needs them
    const WebPageView* const page = CurrentPage();
    const auto web = host_.frontPage.Session();
    if (!page || !web || web->Themes().empty()) return Tell({"The web has no themes."});
    const WebPath path = page->Page();
    if (path.empty() || !IsPageName(path.back())) return Tell({"Only a page can have a theme."});
    std::string present;
    try {
        present = NameOfPageTheme(*web, path);
    } catch (const RunTimeError& error) {
        return Tell({error.what()});
    }
    QStringList labels;
    QString chosen;
    for (const Theme& theme : web->Themes()) {
        labels += QString("%1 (%2)").arg(ToQt(theme.label), ToQt(theme.name));
        if (EqualIgnoringCase(theme.name, present)) chosen = labels.back();
    }
    QInputDialog dialog(this);
    dialog.setWindowTitle("Theme of This Page");
    dialog.setLabelText("&Theme:");
    dialog.setComboBoxItems(labels);
    if (!chosen.isEmpty()) dialog.setTextValue(chosen);
    dialog.setMinimumWidth(kWidth);
    if (dialog.exec() != QDialog::Accepted) return;
    const auto index = static_cast<std::size_t>(labels.indexOf(dialog.textValue()));
    GiveTheme(path, web->Themes()[index].name);
}

void HostWindow::GiveTheme(const WebPath& page, const std::string& theme) {
    try {
        Tell({GiveThemeToPage(*host_.frontPage.Session(), page, theme)});
    } catch (const RunTimeError& error) {
        Tell({error.what()});
    }
    RefreshViews();
}

void HostWindow::FillRecentWebs() {
    recentClicks_.clear();
    while (recentWebs_->Controls()->Count() > 0)
        recentWebs_->Controls()->All().back()->Remove();
    const auto webs = RecentWebs(host_.platform);
    for (std::size_t i = 0; i < webs.size(); ++i) {
        const QString caption = QString("&%1 %2").arg(i + 1).arg(WithoutAccessKey(ToQt(webs[i])));
        const auto control =
            recentWebs_->Controls()->Append({.look = {.caption = FromQt(caption)}});
        // The list is made anew by the click, so the click must be over by then.
        recentClicks_.push_back(control->OnClick([this, web = webs[i]] {
            QMetaObject::invokeMethod(
                this, [this, web] { OpenWeb(web); }, Qt::QueuedConnection);
        }));
    }
    recentWebs_->Set(&HostControlLook::isEnabled, !webs.empty());
}

}  // namespace morpho
