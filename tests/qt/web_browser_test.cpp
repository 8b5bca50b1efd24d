#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QWebEngineView>

#include "qt/on_screen.h"

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
    void Show(const std::function<void(QWidget&)>& script) {
        page_.Navigate("C:\\work\\theme.htm", 14);
        OnScreen::Show(form_, script);
    }
    QColor Shown() { return toolkit_.PictureOf(form_).pixelColor(20, 20); }
    static QWidget* Page(QWidget& window) {
        return window.findChild<QWebEngineView*>()->focusProxy();
    }

    Form form_{toolkit_, {"frmPage", "Page", {3000, 3000}}};
    WebBrowser page_{form_, {"page", {0, 0, 3000, 3000}}};
};

TEST_F(WebBrowserTest, FindsPicturesAsTheyAreWrittenInOldPages) {
    files_.PutFile("C:\\Work\\Blends\\Bild \xC3\xA4.GIF", Picture(Qt::red));
    for (const char* const name : {"50% grey", "a#b", "what%20", "w?", "%23",
                                   "Stra\xC3\x9F"
                                   "e"})
        files_.PutFile("C:\\Work\\" + std::string(name) + "\\a.gif", Picture(Qt::red));
    for (const char* const address :
         {"Blends\\Bild \xE4.GIF", "blends\\BILD%20%C3%A4.gif", "Blends/bild \xE4.gif",
          "50%25%20grey\\a.gif", "a%23b\\a.gif", "what%2520\\a.gif", "w%3F\\a.gif", "%2523/a.gif",
          "Stra\xDF"
          "e\\a.gif",
          "Stra%C3%9Fe\\a.gif"}) {
        PutPage(address);
        Show([&](QWidget&) { EXPECT_EQ(Shown(), QColor(Qt::red)) << address; });
    }
}

TEST_F(WebBrowserTest, OpensAPageWhoseNameLooksLikePartOfAnAddress) {
    for (const char* const name : {"50% grey", "a#b?c", "what%20",
                                   "Stra\xC3\x9F"
                                   "e \xE2\x82\xAC"}) {
        const std::string page = "C:\\Work\\" + std::string(name) + ".htm";
        files_.PutFile(page, "<body bgcolor=#ff0000>");
        page_.Navigate(page, 14);
        OnScreen::Show(form_, [&](QWidget&) { EXPECT_EQ(Shown(), QColor(Qt::red)) << name; });
    }
}

TEST_F(WebBrowserTest, ReadsNothingOutsideThePagesFolder) {
    files_.PutFile("C:\\secret.png", Picture(Qt::red));
    files_.PutFile("Z:\\tmp\\secret.png", Picture(Qt::red));
    for (const char* const address :
         {"..\\secret.png", "../secret.png", "%2e%2e/secret.png", "..%5Csecret.png",
          "x/..%2f..%2fsecret.png", "C:\\secret.png", "file:///tmp/secret.png", "/C:/secret.png"}) {
        PutPage(address);
        Show([&](QWidget&) { EXPECT_NE(Shown(), QColor(Qt::red)) << address; });
    }
}

TEST_F(WebBrowserTest, ARefreshShowsTheChangedPictureAtTheSamePlace) {
    files_.PutFile("C:\\Work\\a.png", Picture(Qt::red));
    PutPage("a.png");
    Show([&](QWidget& window) {
        EXPECT_EQ(Shown(), QColor(Qt::red));
        files_.PutFile("C:\\Work\\a.png", Picture(Qt::green));
        page_.Refresh2(kRefreshCompletely);
        EXPECT_EQ(Shown(), QColor(Qt::green));
        files_.PutFile("C:\\Work\\a.png", Picture(Qt::blue));
        page_.RefreshPage();
        EXPECT_EQ(Shown(), QColor(Qt::blue));

        QTest::keyClick(Page(window), Qt::Key_End);
        const auto place = [&] {
            return window.findChild<QWebEngineView*>()->page()->scrollPosition();
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return place().y() > 0; }));
        const QPointF before = place();
        page_.RefreshPage();
        Shown();
        EXPECT_EQ(place(), before);
    });
}

TEST_F(WebBrowserTest, EscapeClosesTheFormAndIsNotKeptByThePage) {
    files_.PutFile("C:\\Work\\Theme.htm", "<p>page");
    Show([&](QWidget& window) {
        Shown();
        QTest::keyClick(Page(window), Qt::Key_Escape);
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
    Show([&](QWidget& window) {
        EXPECT_EQ(Shown(), QColor(Qt::red));
        QTest::mouseClick(Page(window), Qt::LeftButton, {}, {20, 20});
        QTest::qWait(300);
        EXPECT_EQ(Shown(), QColor(Qt::red));
    });
}

TEST_F(WebBrowserTest, APictureShowsWindowPageAndDialog) {
    Gallery gallery(toolkit_);
    WebBrowser page(gallery.fraPreview, {"page", {30, 300, 8700, 3000}, {}, {}, "Preview"});
    files_.PutFile("C:\\Work\\a.png", Picture(Qt::red));
    PutPage("a.png");
    files_.PutFile("C:\\Other\\Page.htm", "<body bgcolor=#ff00ff>");
    page_.Navigate("C:\\Other\\Page.htm", 14);
    page.Navigate("C:\\Work\\Theme.htm", 14);
    gallery.picBand.SetPicture(Picture(Qt::green));
    gallery.picOwnSize.SetPicture(Picture(Qt::blue));
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
    });
    OnScreen::Show(gallery, [&](QWidget&) { form_.ShowModal(); });
}

}  // namespace
}  // namespace morpho::test
