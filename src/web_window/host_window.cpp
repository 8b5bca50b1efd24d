#include "web_window/host_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QProgressBar>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>

#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "qt/qt_text.h"
#include "shared/settings.h"
#include "web_host/disk_application.h"
#include "web_host/page_walk.h"
#include "web_window/recent_webs.h"
#include "web_window/web_tree_model.h"

namespace morpho {

namespace {

constexpr std::string_view kApplication = "Morpho";
constexpr std::string_view kSection = "Web Window";
constexpr int kTreeWidth = 240;  // pixels
constexpr int kAskAgainMilliseconds = 200;

}  // namespace

HostWindow::HostWindow(const HostParts& host)
    : host_(host),
      bars_(host.frontPage.HostBars(), *this),
      splitter_(new QSplitter),
      tree_(new QTreeView),
      tabs_(new QTabWidget),
      status_(new QLabel),
      progress_(new QProgressBar),
      runner_(*progress_) {
    splitter_->addWidget(tree_);
    splitter_->addWidget(tabs_);
    splitter_->setStretchFactor(1, 1);
    splitter_->setSizes({kTreeWidth, 3 * kTreeWidth});
    setCentralWidget(splitter_);
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    tree_->setAccessibleName("Folders and files of the web");
    tabs_->setTabsClosable(true);
    tabs_->setMovable(true);
    tabs_->setDocumentMode(true);
    statusBar()->addWidget(status_, 1);
    statusBar()->addPermanentWidget(progress_);
    host_.frontPage.SetLongWork(runner_.ForHost());
    host_.frontPage.SetActivePage([this] { return PageForAddIns(); });
    host_.frontPage.SetRefresh([this] { RefreshViews(); });
    status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(tree_, &QTreeView::activated, this, &HostWindow::OpenEntry);
    connect(tree_, &QTreeView::expanded, this, &HostWindow::WatchShown);
    connect(tabs_, &QTabWidget::tabCloseRequested, this, &HostWindow::CloseTab);
    connect(tabs_, &QTabWidget::currentChanged, this, &HostWindow::ShowCurrentPage);
    connect(&watcher_, &WebWatcher::Changed, this, &HostWindow::DiskHasChanged);
    AddCommands();
    RestorePlace();
    setWindowTitle("Morpho");
    Tell({"No web is open. To open one, choose File, Open Web."});
    ShowCurrentPage();
}

HostWindow::~HostWindow() {
    host_.frontPage.SetLongWork({});
    host_.frontPage.SetActivePage({});
    host_.frontPage.SetRefresh({});
    // The views go before the page server's sites and the session that they show.
    while (tabs_->count() > 0)
        delete tabs_->widget(0);
}

void HostWindow::LoadWeb(const std::string& folder) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    try {
        runner_.Run([&] { host_.openWeb(folder); });
    } catch (const RunTimeError&) {
        QApplication::restoreOverrideCursor();
        throw;
    }
    QApplication::restoreOverrideCursor();
    AddRecentWeb(host_.platform, folder);
    FillRecentWebs();
    ShowWeb();
}

bool HostWindow::OpenWeb(const std::string& folder) {
    if (runner_.IsRunning()) return false;
    try {
        LoadWeb(folder);
        return true;
    } catch (const RunTimeError& error) {
        QMessageBox::warning(this, "Morpho", ToQt(error.what()));
        return false;
    }
}

bool HostWindow::AskForWeb() {
    const auto webs = RecentWebs(host_.platform);
    // Another web is more likely to stand beside the last one than in it.
    const QString start = webs.empty() ? QDir::homePath() : QFileInfo(ToQt(webs.front())).path();
    const QString folder = QFileDialog::getExistingDirectory(this, "Open Web", start);
    return !folder.isEmpty() && OpenWeb(FromQt(folder));
}

void HostWindow::ShowWeb() {
    while (tabs_->count() > 0)
        CloseTab(0);
    const auto web = host_.frontPage.Session();
    files_ = std::make_shared<WebFiles>(web->TheDisk(), web->Files().Path());
    const QString title = ToQt(files_->Root().Path()).section('/', -1);
    auto model = std::make_unique<WebTreeModel>(files_, title);
    tree_->setModel(model.get());
    model_ = std::move(model);
    tree_->expand(model_->index(0, 0));
    tree_->setCurrentIndex(model_->index(0, 0));
    tree_->setFocus();
    setWindowTitle(title + " - Morpho");
    EnableCommands();
    Tell(web->Repairs());
    ShowHomePage();
    WatchShown();
}

void HostWindow::ShowHomePage() {
    if (const auto page = FindFile(*files_, {})) return OpenPage(*page);
    if (host_.frontPage.Session()->Repairs().empty())
        Tell({"The web has no home page. A double click in the tree opens a page."});
}

void HostWindow::OpenEntry(const QModelIndex& index) {
    if (!index.isValid() || model_->IsFolder(index)) return;
    const WebPath path = model_->PathOf(index);
    if (IsShownByBrowser(path.back())) return OpenPage(path);
    Tell({"\"" + path.back() + "\" is neither a page nor a picture."});
}

void HostWindow::OpenPage(const WebPath& page) {
    for (int i = 0; i < tabs_->count(); ++i) {
        if (static_cast<WebPageView*>(tabs_->widget(i))->Page() == page)
            return tabs_->setCurrentIndex(i);
    }
    auto* const view = new WebPageView(host_.pages, files_, tabs_);
    const int index = tabs_->addTab(view, WithoutAccessKey(ToQt(page.back())));
    connect(view, &WebPageView::PageChanged, this, [this, view] {
        const WebPath& shown = view->Page();
        const int tab = tabs_->indexOf(view);
        tabs_->setTabText(tab, shown.empty() ? QString() : WithoutAccessKey(ToQt(shown.back())));
        tabs_->setTabToolTip(tab, PlainToolTip(PathOf(shown)));
        WatchShown();
    });
    connect(view, &WebPageView::SelectionChanged, this, &HostWindow::SelectionChanged);
    connect(view, &WebPageView::MenuAsked, this, &HostWindow::ShowPageMenu);
    connect(view, &WebPageView::LinkRefused, this,
            [this](const QString& reason) { Tell({FromQt(reason)}); });
    connect(view, &WebPageView::loadFinished, this, [this, view](bool loaded) {
        if (!loaded && !view->TakeRefusal())
            Tell({"The page \"" + FromQt(PathOf(view->Page())) + "\" cannot be shown."});
        WatchShown();
    });
    view->ShowPage(page);
    tabs_->setCurrentIndex(index);
}

void HostWindow::CloseTab(int index) {
    QWidget* const view = tabs_->widget(index);
    if (!view) return;
    tabs_->removeTab(index);
    view->deleteLater();
    WatchShown();
}

void HostWindow::ShowCurrentPage() {
    EnableCommands();
    emit SelectionChanged();
}

void HostWindow::ShowPageMenu(const QPoint& place) {
    QMenu menu;
    for (QAction* const action : bars_.ActionsOf(*host_.frontPage.HostBars().Pictures()))
        menu.addAction(action);
    const WebPageView* const page = CurrentPage();
    if (page && page->Selection().picture && !menu.isEmpty()) menu.exec(place);
}

WebPageView* HostWindow::CurrentPage() const {
    return static_cast<WebPageView*>(tabs_->currentWidget());
}

std::optional<ActivePage> HostWindow::PageForAddIns() const {
    const WebPageView* const view = CurrentPage();
    if (!view) return {};
    const PageSelection& selected = view->Selection();
    // A page that has not answered yet has nothing selected.
    if (selected.page.empty()) return ActivePage{view->Page()};
    return ActivePage{selected.page, selected.picture, selected.html};
}

void HostWindow::RefreshViews() {
    if (!model_) return;
    model_->Update();
    for (int i = 0; i < tabs_->count(); ++i)
        static_cast<WebPageView*>(tabs_->widget(i))->ReadAgain();
    WatchShown();
}

void HostWindow::AskLater(const QString& question, const std::function<void()>& yes) {
    if (QApplication::activeModalWidget()) {
        QTimer::singleShot(kAskAgainMilliseconds, this, [=, this] { AskLater(question, yes); });
    } else if (QMessageBox::question(this, "Morpho", question) == QMessageBox::Yes) {
        yes();
    }
}

void HostWindow::Tell(const std::vector<std::string>& sentences) {
    QStringList lines;
    for (const std::string& sentence : sentences)
        lines += ToQt(sentence);
    QString first = lines.value(0);
    if (lines.size() > 1) first += QString(" (and %1 more)").arg(lines.size() - 1);
    status_->setText(first);
    status_->setToolTip(PlainToolTip(lines.mid(0, 20).join('\n')));
}

// The folders that the tree has read, and the files that the pages in tabs were made of.
void HostWindow::WatchShown() {
    if (!model_) return;
    QStringList paths;
    for (int i = 0; i < tabs_->count(); ++i)
        paths += static_cast<WebPageView*>(tabs_->widget(i))->Files().Paths();
    for (const WebPath& folder : model_->ListedFolders())
        paths.prepend(PathOf(folder));
    paths.removeDuplicates();
    watcher_.Watch(paths);
}

void HostWindow::DiskHasChanged() {
    if (!model_) return;
    model_->Update();
    for (int i = 0; i < tabs_->count(); ++i) {
        auto* const view = static_cast<WebPageView*>(tabs_->widget(i));
        if (view->Files().HaveChanged()) view->ReadAgain();
    }
    WatchShown();
}

// The path of the disk.
QString HostWindow::PathOf(const WebPath& names) const {
    QString path = ToQt(files_->Root().Path());
    for (const std::string& name : names)
        path += '/' + ToQt(name);
    return path;
}

void HostWindow::RestorePlace() {
    // The first time; a small screen holds the whole window.
    resize(QSize(1100, 750).boundedTo(screen()->availableSize()));
    const auto bytesOf = [this](const char* key) {
        const std::string text = GetSetting(host_.platform, kApplication, kSection, key, "");
        return QByteArray::fromBase64(QByteArray::fromStdString(text));
    };
    restoreGeometry(bytesOf("Geometry"));
    splitter_->restoreState(bytesOf("Splitter"));
}

void HostWindow::closeEvent(QCloseEvent* event) {
    const auto save = [this](const char* key, const QByteArray& bytes) {
        SaveSetting(host_.platform, kApplication, kSection, key, bytes.toBase64().toStdString());
    };
    save("Geometry", saveGeometry());
    save("Splitter", splitter_->saveState());
    QMainWindow::closeEvent(event);
}

}  // namespace morpho
