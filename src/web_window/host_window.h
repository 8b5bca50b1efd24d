#pragma once

#include <QKeySequence>
#include <QMainWindow>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "web_host/active_page.h"
#include "web_window/bar_mirror.h"
#include "web_window/web_page_view.h"
#include "web_window/web_watcher.h"
#include "web_window/work_runner.h"

class QLabel;
class QProgressBar;
class QSplitter;
class QTabWidget;
class QTreeView;

namespace morpho {

class DiskApplication;
class WebTreeModel;
struct Platform;

// What the window shows, and how it opens a web. All must outlive the window.
struct HostParts {
    DiskApplication& frontPage;
    const Platform& platform;
    PageServer& pages;
    // Opens the web in this folder, a path of the disk; called on another thread. Throws
    // RunTimeError.
    std::function<void(const std::string& folder)> openWeb;
};

// The window of the stand-in host: the open web as a tree, its pages in tabs, and the host's menus
// and toolbars, which the add-ins fill.
class HostWindow : public QMainWindow {
    Q_OBJECT

  public:
    explicit HostWindow(const HostParts& host);
    ~HostWindow() override;

    // Opens a web and shows its home page. Throws RunTimeError when it cannot be opened; the
    // earlier web then stays open.
    void LoadWeb(const std::string& folder);
    // The same; the person is told of a failure. False when the web was not opened.
    bool OpenWeb(const std::string& folder);
    // Asks for the folder of a web. False when none was opened.
    bool AskForWeb();
    // Shows a page, or a picture, in a tab of its own, or in the one that shows it already.
    void OpenPage(const WebPath& page);
    // Reads tree and pages again.
    void RefreshViews();
    // Shows sentences for the person in the status line; the rest of several as its tool tip.
    void Tell(const std::vector<std::string>& sentences);
    // Asks a question as soon as no dialog is open, and calls `yes` when the person agrees.
    void AskLater(const QString& question, const std::function<void()>& yes);

    // The page whose tab is in front; null when there is none.
    WebPageView* CurrentPage() const;
    const BarMirror& Bars() const { return bars_; }
    QTreeView& Tree() const { return *tree_; }

  signals:
    // Another page is in front, or something else is selected in it.
    void SelectionChanged();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    struct Command {
        int id;
        const char* caption;  // with "&" before the access key
        QKeySequence keys;
        bool beginsGroup = false;
    };

    void AddCommands();
    void AddViewCommands();
    std::shared_ptr<HostControl> AddCommand(HostMenu menu, const Command& command,
                                            std::function<void()> clicked);
    // Adds a command that is disabled while no web is open.
    void AddWebCommand(HostMenu menu, const Command& command, std::function<void()> clicked);
    // Adds a command that is disabled while no page is open.
    void AddPageCommand(HostMenu menu, const Command& command, std::function<void()> clicked);
    void EnableCommands();
    void ShowHelp();
    void ShowAbout();
    void FocusOtherPane();
    void RecalculateHyperlinks();
    void FillRecentWebs();
    void ShowWeb();
    void ShowHomePage();
    void OpenEntry(const QModelIndex& index);
    void CloseTab(int index);
    void ShowCurrentPage();
    void ShowPageMenu(const QPoint& place);
    void AskForThemeOfPage();
    void GiveTheme(const WebPath& page, const std::string& theme);
    void WatchShown();
    std::optional<ActivePage> PageForAddIns() const;
    void DiskHasChanged();
    QString PathOf(const WebPath& names) const;
    void RestorePlace();

    HostParts host_;
    BarMirror bars_;
    std::vector<std::unique_ptr<ClickEvents>> clicks_;
    std::vector<std::unique_ptr<ClickEvents>> recentClicks_;
    std::shared_ptr<HostControl> recentWebs_;
    std::vector<std::shared_ptr<HostControl>> webCommands_;
    std::vector<std::shared_ptr<HostControl>> pageCommands_;
    // The window's own view of the open web: the host may be at work on its own meanwhile.
    std::shared_ptr<const WebFiles> files_;
    std::unique_ptr<WebTreeModel> model_;
    QSplitter* splitter_;
    QTreeView* tree_;
    QTabWidget* tabs_;
    QLabel* status_;
    QProgressBar* progress_;
    WorkRunner runner_;
    WebWatcher watcher_;
};

}  // namespace morpho
