#include "windows_toolkit/windows_screen.h"

#include "windows_system/wide.h"
#include "windows_toolkit/control_peer.h"
#include "windows_toolkit/window_text.h"

namespace morpho::test {

namespace {

WPARAM CodeOf(Key key) {
    switch (key) {
        case Key::kSpace:
            return VK_SPACE;
        case Key::kBackspace:
            return VK_BACK;
        case Key::kLeft:
            return VK_LEFT;
        case Key::kRight:
            return VK_RIGHT;
        case Key::kUp:
            return VK_UP;
        case Key::kDown:
            return VK_DOWN;
        case Key::kHome:
            return VK_HOME;
        case Key::kEnd:
            return VK_END;
        case Key::kPageDown:
            return VK_NEXT;
        case Key::k5:
            return '5';
        case Key::k6:
            return '6';
        case Key::kX:
            return 'X';
        default:
            return VK_OEM_PERIOD;
    }
}

std::string ListText(HWND list, UINT selected, UINT text) {
    const LRESULT row = SendMessageW(list, selected, 0, 0);
    wchar_t buffer[200] = {};
    if (row >= 0)
        SendMessageW(list, text, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(buffer));
    return Narrow(buffer);
}

std::string RowsOf(HWND list) {
    const bool boxes =
        (SendMessageW(list, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0) & LVS_EX_CHECKBOXES) != 0;
    const UINT mask = boxes ? LVIS_STATEIMAGEMASK : LVIS_SELECTED;
    const LRESULT wanted = boxes ? INDEXTOSTATEIMAGEMASK(2) : LVIS_SELECTED;
    std::string rows;
    const auto count = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < count; ++row) {
        if (SendMessageW(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), mask) != wanted)
            continue;
        wchar_t text[200] = {};
        LVITEMW item{};
        item.pszText = text;
        item.cchTextMax = 200;
        SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&item));
        rows += Narrow(text);
    }
    return rows;
}

std::string NodeOf(HWND tree) {
    wchar_t text[200] = {};
    TVITEMW item{};
    item.mask = TVIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 200;
    item.hItem = reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0));
    if (item.hItem != nullptr) SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return Narrow(text);
}

std::string ThumbOf(HWND bar) {
    SCROLLINFO info{sizeof info, SIF_POS, 0, 0, 0, 0, 0};
    GetScrollInfo(bar, SB_CTL, &info);
    return std::to_string(info.nPos);
}

}  // namespace

WindowsScreen::WindowsScreen() {
    toolkit_.WhenFormStands([this](Form& form) {
        window_ = toolkit_.WindowOf(form);
        script_();
        form.Hide();
    });
}

void WindowsScreen::Show(Form& form, const std::function<void()>& script) {
    script_ = script;
    form.ShowModal();
}

HWND WindowsScreen::WindowOf(const Control& control) const {
    return morpho::WindowOf(window_, control);
}

void WindowsScreen::Press(const Control& control, Key key) {
    ::SetFocus(WindowOf(control));
    PressKey(CodeOf(key));
}

void WindowsScreen::PressKey(WPARAM key, bool alt) {
    const HWND focus = GetFocus();
    const LPARAM held = alt ? 1 << 29 : 0;
    PostMessageW(focus, alt ? WM_SYSKEYDOWN : WM_KEYDOWN, key, held | 1);
    PostMessageW(focus, alt ? WM_SYSKEYUP : WM_KEYUP, key, held | static_cast<LPARAM>(0xC0000001));
    toolkit_.HandleWaiting();
}

void WindowsScreen::Pause() {
    const ULONGLONG end = GetTickCount64() + 150;
    while (GetTickCount64() < end) {
        toolkit_.HandleWaiting();
        Sleep(5);
    }
}

void WindowsScreen::BringWithinReach(const Control& control) {
    EnableWindow(GetParent(WindowOf(control)), TRUE);
    EnableWindow(WindowOf(control), TRUE);
}

std::string WindowsScreen::Shown(const Control& control) {
    const HWND window = WindowOf(control);
    wchar_t name[40] = {};
    GetClassNameW(window, name, 40);
    const std::string kind = Narrow(name);
    const auto number = [&](UINT message) {
        return std::to_string(static_cast<int>(SendMessageW(window, message, 0, 0)));
    };
    if (kind == "Button")
        return SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED ? "true" : "false";
    if (kind == "msctls_trackbar32") return number(TBM_GETPOS);
    if (kind == "msctls_updown32") return number(UDM_GETPOS32);
    if (kind == "ComboBox") return ListText(window, CB_GETCURSEL, CB_GETLBTEXT);
    if (kind == "ListBox") return ListText(window, LB_GETCURSEL, LB_GETTEXT);
    if (kind == "SysListView32") return RowsOf(window);
    if (kind == "SysTreeView32") return NodeOf(window);
    return kind == "ScrollBar" ? ThumbOf(window) : TextOf(window);
}

}  // namespace morpho::test
