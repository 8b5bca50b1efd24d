#include "web_window/host_window.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <chrono>
#include <thread>

#include "linux/disk_file_system.h"
#include "linux/disk_path.h"
#include "linux/linux_disk.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"
#include "web_host/disk_application.h"
#include "web_window/recent_webs.h"

namespace morpho::test {
namespace {

// A picture of one red point.
const std::string kRed("GIF89a\1\0\1\0\200\0\0\377\0\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35);

// Runs the event loop until the condition holds; false after some seconds. QTest::qWaitFor sleeps
// between events, and a page takes the browser hundreds of them.
template <typename Condition>
bool WaitUntil(Condition condition) {
    const QDeadlineTimer deadline(5'000);
    while (!condition()) {
        if (deadline.hasExpired()) return false;
        QEventLoop loop;
        QTimer::singleShot(10, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

class HostWindowTest : public testing::Test {
  protected:
    HostWindowTest() {
        web_.Write("web/index.htm",
                   "<body style='margin:0'><img src='pics/a.gif' width=100 height=100>"
                   "<img src='../secret.gif' width=50 height=50><p>words "
                   "<script>document.title = 'run'</script></body>");
        web_.Write("web/pics/A.gif", kRed);
        web_.Write("web/_vti_cnf/index.htm", "");
        web_.Write("web/_themes/t/t.css", "body { color: #ff0000 }");
        web_.Write("secret.gif", kRed);
        window_.show();
    }
    ~HostWindowTest() override { window_.hide(); }
    void Open() {
        ASSERT_TRUE(window_.OpenWeb(web_ / "web"));
        WaitForPage();
    }
    void WaitForPage() {
        ASSERT_TRUE(WaitUntil(
            [this] { return window_.CurrentPage() && !window_.CurrentPage()->IsLoading(); }));
    }
    QString Rows(const QModelIndex& parent) {
        QStringList rows;
        QAbstractItemModel& model = *window_.Tree().model();
        if (model.canFetchMore(parent)) model.fetchMore(parent);
        for (int row = 0; row < model.rowCount(parent); ++row)
            rows += model.index(row, 0, parent).data().toString();
        return rows.join(' ');
    }
    QModelIndex Root() { return window_.Tree().model()->index(0, 0); }
    QString Evaluate(const QString& script) {
        QString result = "(none)";
        window_.CurrentPage()->page()->runJavaScript(
            script, 1, [&](const QVariant& value) { result = value.toString(); });
        [[maybe_unused]] const bool came = WaitUntil([&] { return result != "(none)"; });
        return result;
    }
    QString StatusText() { return window_.statusBar()->findChild<QLabel*>()->text(); }
    // The captions in the menu of this name.
    QString MenuOf(const QString& name) {
        QStringList captions;
        for (const QAction* menu : window_.menuBar()->actions()) {
            if (menu->text() != name) continue;
            for (const QAction* item : menu->menu()->actions()) {
                if (!item->isSeparator() && item->isVisible()) captions += item->text();
            }
        }
        return captions.join('|');
    }

    TemporaryFolder web_;
    std::function<void()> beforeOpen_;
    FakePlatform world_;
    DiskFileSystem files_;
    LinuxDisk disk_;
    DiskApplication application_{disk_, files_, ToWindowsPath(web_ / "cache")};
    PageServer pages_{files_};
    HostWindow window_{{application_, world_.platform, pages_, [this](const std::string& folder) {
                            if (beforeOpen_) beforeOpen_();
                            application_.Open(ToWindowsPath(folder));
                        }}};
};

TEST_F(HostWindowTest, ShowsTheWebAsATreeAndWhatOtherProgramsChange) {
    Open();
    EXPECT_EQ(Rows(Root()), "pics index.htm");
    web_.Write("web/sub/new.htm", "");
    std::filesystem::rename(web_ / "web/index.htm", web_ / "web/zebra.htm");
    EXPECT_TRUE(WaitUntil([&] { return Rows(Root()) == "pics sub zebra.htm"; }));
    EXPECT_EQ(Rows(window_.Tree().model()->index(0, 0, Root())), "A.gif");
}

TEST_F(HostWindowTest, APageRunsNoScriptAndGetsNothingFromOutsideTheWeb) {
    Open();
    EXPECT_EQ(Evaluate("document.title"), "");
    const QString widths = "Array.from(document.images).map(i => i.naturalWidth).join()";
    EXPECT_EQ(Evaluate(widths), "1,0");
    std::filesystem::create_symlink(web_ / "secret.gif", web_ / "web/link.gif");
    web_.Write("web/index.htm", "<img src=link.gif><img src=page://site1/pics/a.gif>");
    EXPECT_TRUE(WaitUntil([&] { return Evaluate(widths) == "0,1"; })) << "reloaded";
}

TEST_F(HostWindowTest, LinksLeadToWhatTheWebHasAndAPageFollowsItsFiles) {
    web_.Write("web/sub/index.htm",
               "<link rel=stylesheet href=../_themes/t/t.css><img src=../pics/a.gif>");
    web_.Write("web/data.bin", std::string("\0\1", 2));
    const QString body = "getComputedStyle(document.body).color";
    for (const auto& [link, title] : std::map<std::string, std::string>{
             {"sub", "index.htm in sub"},
             {"SUB/Index.HTM", "index.htm in sub"},
             {"sub target=_blank", "index.htm in sub"},
             {"data.bin", "\"data.bin\" is neither a page nor a picture."},
             {"none.htm", "The web has no \"none.htm\"."},
             {"http://example.org/", "This address is outside of the web: http://example.org/"}}) {
        web_.Write("web/index.htm", "<a id=a href=" + link + ">go</a>");
        Open();
        Evaluate("document.getElementById('a').click()");
        EXPECT_TRUE(WaitUntil([&] {
            const WebPath& page = window_.CurrentPage()->Page();
            return page == WebPath{"sub", "index.htm"}
                       ? title == "index.htm in sub"
                       : StatusText() == QString::fromStdString(title);
        })) << link
            << ": " << StatusText().toStdString();
        if (title != "index.htm in sub") continue;
        EXPECT_TRUE(WaitUntil([&] { return Evaluate(body) == "rgb(255, 0, 0)"; })) << link;
    }
    web_.Write("web/_themes/t/new.css", "body { color: #0000ff }");
    std::filesystem::rename(web_ / "web/_themes/t/new.css", web_ / "web/_themes/t/t.css");
    web_.Write("web/index.htm", "<link rel=stylesheet href=_themes/t/t.css>");
    Open();
    EXPECT_TRUE(WaitUntil([&] { return Evaluate(body) == "rgb(0, 0, 255)"; }));
    web_.Write("web/_themes/t/t.css", "body { color: #00ff00 }");
    EXPECT_TRUE(WaitUntil([&] { return Evaluate(body) == "rgb(0, 255, 0)"; }));
}

TEST_F(HostWindowTest, IsAliveButTakesNoInputWhileTheHostWorks) {
    Open();
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &window_, [&] {
        ++ticks;
        QTest::keyClick(&window_.Tree(), Qt::Key_Home);
    });
    window_.Tree().setCurrentIndex(window_.Tree().model()->index(1, 0, Root()));
    timer.start(10);
    beforeOpen_ = [&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        throw RunTimeError(ErrorNumber::kPathNotFound, "gone");
    };
    QTimer::singleShot(800, [] { QApplication::activeModalWidget()->close(); });
    const QModelIndex before = window_.Tree().currentIndex();
    QTimer::singleShot(450, [&] {
        timer.stop();
        EXPECT_GT(ticks, 10);
        EXPECT_EQ(window_.Tree().currentIndex(), before) << "no key came through";
    });
    EXPECT_FALSE(window_.OpenWeb(web_ / "web"));

    web_.Write("web/b.htm", "");
    application_.ActiveWeb()->RecalcHyperlinks();
    const auto* const progress = window_.findChild<QProgressBar*>();
    EXPECT_TRUE(WaitUntil([&] { return progress->text() == "2 of 2 pages"; }));
}

TEST_F(HostWindowTest, AClickSelectsAPictureUntilSomethingElseIsClicked) {
    Open();
    const QSignalSpy told(&window_, &HostWindow::SelectionChanged);
    const auto click = [&](const QPoint& place) {
        QWidget* const target = window_.CurrentPage()->focusProxy();
        QTest::mouseClick(target, Qt::LeftButton, {}, place);
    };
    const auto isSelected = [&](std::optional<int> picture) {
        return WaitUntil([&] { return window_.CurrentPage()->Selection().picture == picture; });
    };
    click({50, 50});
    EXPECT_TRUE(isSelected(0));
    EXPECT_NE(Evaluate("document.images[0].style.outline"), "");
    click({120, 80});
    EXPECT_TRUE(isSelected(1));
    EXPECT_EQ(Evaluate("document.images[0].style.outline"), "");
    EXPECT_EQ(application_.ActiveDocument()->SelectionHtml(),
              "<img src='../secret.gif' width=50 height=50>");
    click({300, 300});
    EXPECT_TRUE(isSelected({}));
    EXPECT_EQ(told.count(), 3);
}

TEST_F(HostWindowTest, ShowsAPictureThatAnAddInHasSaved) {
    Open();
    // Nothing but the contents tells that the file is another one.
    const auto written = std::filesystem::last_write_time(web_ / "web/pics/A.gif");
    std::string wider = kRed;
    wider[6] = 7;
    web_.Write("web/pics/A.gif", wider);
    std::filesystem::last_write_time(web_ / "web/pics/A.gif", written);
    application_.RefreshViews();
    EXPECT_TRUE(WaitUntil([&] { return Evaluate("document.images[0].naturalWidth") == "7"; }));
}

TEST_F(HostWindowTest, MirrorsTheHostsBars) {
    auto bar = application_.Bars()->ActiveMenuBar();
    auto popup = bar->FindControl(30006, {}, true);
    ASSERT_TRUE(popup);
    const auto item = popup->Controls()->Add(kButtonControl, "", 1, true);
    item->SetCaption("&Paint...");
    EXPECT_EQ(MenuOf("F&ormat"), "&Paint...|Theme of This &Page...");
    int clicked = 0;
    const auto events = item->AsButton()->OnClick([&] {
        ++clicked;
        item->Delete();
    });
    for (QAction* const action : window_.findChildren<QAction*>()) {
        if (action->text() == "&Paint...") action->trigger();
    }
    EXPECT_EQ(clicked, 1);
    EXPECT_EQ(MenuOf("F&ormat"), "Theme of This &Page...");
}

TEST_F(HostWindowTest, RemembersTheLastWebs) {
    Open();
    EXPECT_TRUE(MenuOf("&File").startsWith("&Open Web...|&Recent Webs|&Close Page"));
    web_.Write("other/index.htm", "");
    EXPECT_TRUE(window_.OpenWeb(web_ / "other"));
    EXPECT_EQ(RecentWebs(world_.platform),
              (std::vector<std::string>{web_ / "other", web_ / "web"}));
}

}  // namespace
}  // namespace morpho::test
