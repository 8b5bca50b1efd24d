#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QWebEngineView>

#include "desktop_qt/on_screen.h"

namespace morpho::test {
namespace {

std::string Picture(const QColor& color) {
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

class BrowserForm : public Form {
  public:
    explicit BrowserForm(Toolkit& toolkit) : Form(toolkit, {"frmPage", "Page", {3000, 3000}}) {}
    WebBrowser page{*this, {"page", {0, 0, 3000, 3000}}};
};

class WebBrowserTest : public OnScreen {
  protected:
    // The page shows one picture, from this address.
    void PutPage(const std::string& address) {
        std::string text;
        for (int i = 0; i < 2000; ++i)
            text += "word ";
        files_.PutFile("C:\\Work\\Theme.htm",
                       "<meta http-equiv=content-type content='text/html; charset=windows-1252'>"
                       "<body topmargin=0 leftmargin=0><img src='" +
                           address + "' width=40 height=40><p>" + text);
    }

    QColor Shown() { return toolkit_.PictureOf(form_).pixelColor(20, 20); }

    BrowserForm form_{toolkit_};
};

TEST_F(WebBrowserTest, FindsPicturesAsTheyAreWrittenInOldPages) {
    files_.PutFile("C:\\Work\\Blends\\Bild \xC3\xA4.GIF", Picture(Qt::red));
    for (const char* const address :
         {"Blends\\Bild \xE4.GIF", "blends\\BILD%20%C3%A4.gif", "Blends/bild \xE4.gif"}) {
        PutPage(address);
        form_.page.Navigate("C:\\work\\theme.htm", 14);
        Show(form_, [&](QWidget&) { EXPECT_EQ(Shown(), QColor(Qt::red)) << address; });
    }
}

TEST_F(WebBrowserTest, ReadsNothingOutsideThePagesFolder) {
    files_.PutFile("C:\\secret.png", Picture(Qt::red));
    files_.PutFile("Z:\\tmp\\secret.png", Picture(Qt::red));
    for (const char* const address :
         {"..\\secret.png", "../secret.png", "%2e%2e/secret.png", "..%5Csecret.png",
          "x/..%2f..%2fsecret.png", "C:\\secret.png", "file:///tmp/secret.png", "/C:/secret.png"}) {
        PutPage(address);
        form_.page.Navigate("C:\\Work\\Theme.htm", 14);
        Show(form_, [&](QWidget&) { EXPECT_NE(Shown(), QColor(Qt::red)) << address; });
    }
}

TEST_F(WebBrowserTest, ARefreshShowsTheChangedPictureAtTheSamePlace) {
    files_.PutFile("C:\\Work\\a.png", Picture(Qt::red));
    PutPage("a.png");
    form_.page.Navigate("C:\\Work\\Theme.htm", 14);
    Show(form_, [&](QWidget& window) {
        EXPECT_EQ(Shown(), QColor(Qt::red));
        files_.PutFile("C:\\Work\\a.png", Picture(Qt::green));
        form_.page.Refresh2(kRefreshCompletely);
        EXPECT_EQ(Shown(), QColor(Qt::green));
        files_.PutFile("C:\\Work\\a.png", Picture(Qt::blue));
        form_.page.RefreshPage();
        EXPECT_EQ(Shown(), QColor(Qt::blue));

        auto* const view = window.findChild<QWebEngineView*>();
        QTest::keyClick(view->focusProxy(), Qt::Key_End);
        const auto place = [&] { return view->page()->scrollPosition(); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return place().y() > 0; }));
        const QPointF before = place();
        form_.page.RefreshPage();
        Shown();
        EXPECT_EQ(place(), before);
    });
}

TEST_F(WebBrowserTest, EscapeIsNotKeptByThePage) {
    files_.PutFile("C:\\Work\\Theme.htm", "<p>page");
    form_.page.Navigate("C:\\Work\\Theme.htm", 14);
    Show(form_, [&](QWidget& window) {
        Shown();
        QTest::keyClick(window.findChild<QWebEngineView*>()->focusProxy(), Qt::Key_Escape);
        EXPECT_FALSE(form_.IsLoaded());
    });
}

TEST_F(WebBrowserTest, LinksAndScriptsDoNothing) {
    files_.PutFile("C:\\Work\\a.png", Picture(Qt::red));
    files_.PutFile("C:\\Work\\other.htm", "<body bgcolor=#0000ff>");
    files_.PutFile("C:\\Work\\Theme.htm",
                   "<meta http-equiv=refresh content='0;url=other.htm'>"
                   "<script>location = 'other.htm'</script><body topmargin=0 leftmargin=0>"
                   "<a href=other.htm><img border=0 src=a.png width=40 height=40></a>");
    form_.page.Navigate("C:\\Work\\Theme.htm", 14);
    Show(form_, [&](QWidget& window) {
        EXPECT_EQ(Shown(), QColor(Qt::red));
        QTest::mouseClick(window.findChild<QWebEngineView*>()->focusProxy(), Qt::LeftButton, {},
                          {20, 20});
        QTest::qWait(300);
        EXPECT_EQ(Shown(), QColor(Qt::red));
    });
}

// The whole gallery as a picture, which a person may look at: MORPHO_PICTURES names a folder.
TEST_F(WebBrowserTest, APictureShowsWindowPageAndDialog) {
    class GalleryWithPage : public Gallery {
      public:
        using Gallery::Gallery;
        WebBrowser page{fraPreview, {"page", {30, 300, 8700, 3000}, {}, {}, 0, "Preview"}};
    } gallery(toolkit_);
    files_.PutFile("C:\\Work\\a.png", Picture(Qt::red));
    PutPage("a.png");
    files_.PutFile("C:\\Other\\Page.htm", "<body bgcolor=#ff00ff>");
    form_.page.Navigate("C:\\Other\\Page.htm", 14);
    gallery.page.Navigate("C:\\Work\\Theme.htm", 14);
    gallery.picBand.SetPicture(Picture(Qt::green));
    gallery.picOwnSize.SetPicture(Picture(Qt::blue));
    gallery.lstNames.SetSelectedQuietly(1, true);
    WhenStands("frmPage", [&](QWidget&) {
        const QImage picture = toolkit_.PictureOf(gallery, true);
        const qreal scale = picture.devicePixelRatio();
        const auto expectColor = [&](QPointF at, Qt::GlobalColor color, const char* what) {
            EXPECT_EQ(picture.pixelColor((at * scale).toPoint()), QColor(color)) << what;
        };
        expectColor({196 + 20, 24 + 20}, Qt::red, "the page");
        expectColor({194 + 330, 236 + 56}, Qt::green, "the stretched picture");
        expectColor({194 + 395, 236 + 50}, Qt::blue, "the picture at its own size");
        expectColor({394, 200}, Qt::magenta, "the dialog");
        const char* const folder = std::getenv("MORPHO_PICTURES");
        if (folder == nullptr) return;
        EXPECT_TRUE(toolkit_.SavePicture(gallery, std::string(folder) + "/gallery.png", true));
    });
    Show(gallery, [&](QWidget&) { form_.ShowModal(); });
}

}  // namespace
}  // namespace morpho::test
