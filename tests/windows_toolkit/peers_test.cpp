#include <gmock/gmock.h>

#include <cstring>

#include "forms/gallery.h"
#include "windows_system/wide.h"
#include "windows_toolkit/list_view_window.h"
#include "windows_toolkit/page_address.h"
#include "windows_toolkit/web_browser_peer.h"
#include "windows_toolkit/windows_screen.h"

#include <mshtmdid.h>

namespace morpho::test {
namespace {

using Events = std::vector<std::string>;
const std::string kScroll = "sldHue_Scroll", kChange = "sldHue_Change",
                  kNode = "tvFolders_NodeClick ";

LRESULT Ask(HWND window, UINT message, WPARAM wide = 0, LPARAM low = 0) {
    return SendMessageW(window, message, wide, low);
}

// A control may wait for the button to go up before it returns.
void Click(WindowsScreen& screen, HWND window, POINT at) {
    const LPARAM place = MAKELPARAM(at.x, at.y);
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageW(window, WM_LBUTTONUP, 0, place);
    screen.Pause();
}

// Two pixels wide and one high; the frames are red and blue.
const std::string kHeader("GIF89a\2\0\1\0\x80\0\0\xff\0\0\0\0\xff", 19);
std::string Frame(char colour) {
    return std::string("\x21\xf9\4\0\5\0\0\0\x2c\0\0\0\0\2\0\1\0\0\2\2", 20) +
           (colour == 'r' ? "\x04\x0a" : "\x4c\x0a") + std::string(1, '\0');
}

class Pictures : public Form {
  public:
    explicit Pictures(Toolkit& toolkit)
        : Form(toolkit, {"frmPictures", "Pictures", {6000, 3000}, BorderStyle::kSizable}) {}

    PictureBox picOwnSize{*this, {"picOwnSize", {0, 0, 600, 600}}};
    PictureBox picStretched{*this, {"picStretched", {1500, 0, 600, 600}}, true};
    WebBrowser wbbPage{*this, {"wbbPage", {0, 1500, 1500, 1500}}};
};

class OnWindows : public testing::Test {
  protected:
    void ShowGallery(const std::function<void()>& script) {
        screen_.Show(form_, [&] {
            form_.events.clear();
            script();
        });
    }
    HWND WindowOf(const Control& control) const { return screen_.WindowOf(control); }
    void Click(HWND window, POINT at) { test::Click(screen_, window, at); }

    static COLORREF PixelOf(HWND window, int x, int y) {
        UpdateWindow(window);
        const HDC device = GetDC(window);
        const COLORREF colour = GetPixel(device, x, y);
        ReleaseDC(window, device);
        return colour;
    }

    WindowsScreen screen_;
    Gallery form_{screen_.TheToolkit()};
    Pictures pictures_{screen_.TheToolkit()};
};

// The middle of a row's text, or of its box.
POINT InRow(HWND list, int row, int part) {
    RECT place{part, 0, 0, 0};
    Ask(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    return {part == LVIR_LABEL ? place.left + 10 : place.left - 8, (place.top + place.bottom) / 2};
}

TEST_F(OnWindows, AClickOnTheSelectedRowAndOneBesideTheRowsAreReported) {
    ShowGallery([&] {
        const HWND files = WindowOf(form_.lvFiles);
        Click(files, InRow(files, 1, LVIR_LABEL));
        Click(files, InRow(files, 1, LVIR_LABEL));
        EXPECT_EQ(form_.events, (Events{"lvFiles_ItemClick 1", "lvFiles_ItemClick 1"}));
        Click(files, {100, 150});
        EXPECT_EQ(form_.lvFiles.SelectedRow(), kNoEntry);
        EXPECT_EQ(form_.events.size(), 2u);
    });
}

TEST_F(OnWindows, CollapsingAboveTheSelectedNodeSelectsAndReportsOnce) {
    ShowGallery([&] {
        form_.tvFolders.SelectNodeQuietly(form_.root->Children()[0]);
        const HWND tree = WindowOf(form_.tvFolders);
        Ask(tree, WM_KEYDOWN, VK_LEFT);  // to the parent
        Ask(tree, WM_KEYDOWN, VK_LEFT);
        EXPECT_EQ(form_.events, (Events{kNode + "web"}));
        form_.tvFolders.SelectNodeQuietly(form_.root->Children()[0]);
        form_.events.clear();
        const LRESULT item = Ask(tree, TVM_GETNEXTITEM, TVGN_ROOT);
        RECT root{};
        std::memcpy(&root, &item, sizeof(HTREEITEM));  // which item is asked for
        Ask(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&root));
        Click(tree, {8, (root.top + root.bottom) / 2});
        EXPECT_FALSE(form_.root->IsExpanded());
        EXPECT_EQ(screen_.Shown(form_.tvFolders), "web");
        EXPECT_EQ(form_.events, (Events{kNode + "web"}));
        Click(tree, {root.left + 5, (root.top + root.bottom) / 2});
        EXPECT_EQ(form_.events, (Events{kNode + "web", kNode + "web"}));
    });
}

TEST_F(OnWindows, TheBoxTicksOnceAndTheScrolledListTellsItsTop) {
    ShowGallery([&] {
        const HWND names = WindowOf(form_.lstNames);
        Click(names, InRow(names, 2, LVIR_LABEL));
        EXPECT_EQ(form_.lstNames.ListIndex(), 2);
        Click(names, InRow(names, 3, LVIR_ICON));
        EXPECT_EQ(form_.events, (Events{"lstNames_ItemCheck 3"}));
        form_.lstNames.SetTopIndex(7);
        EXPECT_EQ(Ask(names, LVM_GETTOPINDEX), 7);
        Ask(names, WM_VSCROLL, SB_LINEDOWN);
        UpdateWindow(names);
        EXPECT_EQ(form_.lstNames.TopIndex(), 8);
        form_.lstNames.Clear();
        EXPECT_EQ(Ask(names, LVM_GETITEMCOUNT), 0);
    });
}

TEST_F(OnWindows, ADraggedThumbScrollsAndSettlesWhenItIsLetGo) {
    ShowGallery([&] {
        const HWND hue = WindowOf(form_.sldHue);
        const auto tell = [&](WORD code, int position) {
            Ask(hue, TBM_SETPOS, TRUE, position);
            Ask(GetParent(hue), WM_HSCROLL, MAKEWPARAM(code, position),
                reinterpret_cast<LPARAM>(hue));
        };
        tell(TB_THUMBTRACK, 40);
        screen_.Pause();
        EXPECT_EQ(form_.events, (Events{kScroll}));
        tell(TB_THUMBPOSITION, 41);
        tell(TB_ENDTRACK, 41);
        EXPECT_EQ(form_.events, (Events{kScroll, kScroll, kChange}));
    });
}

constexpr COLORREF kRed = RGB(255, 0, 0), kBlue = RGB(0, 0, 255);

TEST_F(OnWindows, APictureStandsAtItsOwnSizeOrFillsTheControl) {
    screen_.Show(pictures_, [&] {
        const std::string still = kHeader + Frame('r') + ";";
        pictures_.picOwnSize.SetPicture(still);
        pictures_.picStretched.SetPicture(still);
        EXPECT_EQ(PixelOf(WindowOf(pictures_.picOwnSize), 1, 0), kRed);
        EXPECT_EQ(PixelOf(WindowOf(pictures_.picOwnSize), 2, 0), GetSysColor(COLOR_BTNFACE));
        EXPECT_EQ(PixelOf(WindowOf(pictures_.picStretched), 38, 38), kRed);
        EXPECT_EQ(pictures_.picOwnSize.NaturalSize(), (Size{30, 15}));
    });
}

TEST_F(OnWindows, AnAnimationPlays) {
    screen_.Show(pictures_, [&] {
        pictures_.picStretched.SetPicture(kHeader + Frame('r') + Frame('b') + ";");
        bool red = false, blue = false;
        for (int step = 0; step < 30 && !(red && blue); ++step) {
            const COLORREF colour = PixelOf(WindowOf(pictures_.picStretched), 20, 20);
            red |= colour == kRed;
            blue |= colour == kBlue;
            screen_.Pause();
        }
        EXPECT_TRUE(red && blue);
    });
}

TEST_F(OnWindows, ADamagedPictureShowsNothingAndHasNoSize) {
    screen_.Show(pictures_, [&] {
        pictures_.picStretched.SetPicture(kHeader + Frame('r') + ";");
        pictures_.picStretched.SetPicture(kHeader);  // states its size, but has no pixels
        EXPECT_EQ(pictures_.picStretched.NaturalSize(), Size{});
        EXPECT_EQ(PixelOf(WindowOf(pictures_.picStretched), 20, 20), GetSysColor(COLOR_BTNFACE));
    });
}

TEST(PageAddress, EscapesWhatHasAMeaningInAnAddress) {
    EXPECT_EQ(PageAddress("C:\\a b\\100%#1.htm"), "file:///C:/a b/100%25%231.htm");
    EXPECT_EQ(PageAddress("\\\\server\\share\\a.htm"), "file://server/share/a.htm");
}

TEST_F(OnWindows, ABrowserIsToldWhereToGo) {
    screen_.Show(pictures_, [&] {
        auto* const peer = dynamic_cast<WebBrowserPeer*>(PeerOf(WindowOf(pictures_.wbbPage)));
        const auto& browser = peer->Browser();
        pictures_.wbbPage.RefreshPage();
        pictures_.wbbPage.Navigate("C:\\100%.htm", kNavigateNoHistory | kNavigateNoReadFromCache);
        pictures_.wbbPage.Refresh2(kRefreshCompletely);
        pictures_.wbbPage.SetWidth(3000);
        if (!browser) return;  // the system has none
        BSTR address = nullptr;
        browser->get_LocationURL(&address);
        EXPECT_THAT(Narrow(address), testing::HasSubstr("100%"));  // Wine takes the escape back
        SysFreeString(address);
        long width = 0;
        browser->get_Width(&width);
        EXPECT_EQ(width, 200);
        ComPointer<IOleClientSite> site;
        browser.As<IOleObject>()->GetClientSite(site.Out());
        VARIANT may{};
        DISPPARAMS none{};
        site.As<IDispatch>()->Invoke(DISPID_AMBIENT_DLCONTROL, IID_NULL, 0, DISPATCH_PROPERTYGET,
                                     &none, &may, nullptr, nullptr);
        EXPECT_EQ(may.lVal & (DLCTL_DLIMAGES | DLCTL_NO_SCRIPTS), DLCTL_DLIMAGES | DLCTL_NO_SCRIPTS)
            << "A page must show pictures and run no script.";
    });
}

}  // namespace
}  // namespace morpho::test
