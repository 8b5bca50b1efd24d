#include "windows_toolkit/form_keys.h"

#include "windows_toolkit/control_peer.h"
#include "windows_toolkit/web_browser_peer.h"

namespace morpho {

namespace {

bool IsDown(int key) {
    return GetKeyState(key) < 0;
}

bool HasOpenList(HWND window) {
    return SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

bool IsTextBox(HWND window) {
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    return lstrcmpiW(name, WC_EDITW) == 0;
}

Shortcut ShortcutOf(WPARAM key) {
    const bool control = IsDown(VK_CONTROL);
    if (control && key >= 'A' && key <= 'Z') return Ctrl(static_cast<char>(key));
    if (!control && key >= VK_F1 && key <= VK_F24)
        return FunctionKey(static_cast<int>(key - VK_F1) + 1);
    return {};
}

// A text box takes back its own typing first.
bool HandleShortcut(Form& form, const MSG& message) {
    const Shortcut shortcut = ShortcutOf(message.wParam);
    const bool undoes = shortcut == Ctrl('Z') && IsTextBox(message.hwnd) &&
                        SendMessageW(message.hwnd, EM_CANUNDO, 0, 0);
    return !shortcut.IsNone() && !undoes && UserShortcut(form, shortcut);
}

bool HandleTab(Form& form) {
    if (IsDown(VK_CONTROL)) return false;
    if (Control* const next = NextTabStop(form, IsDown(VK_SHIFT))) next->SetFocus();
    return true;
}

bool HandleKeyDown(Form& form, const MSG& message) {
    switch (message.wParam) {
        case VK_TAB:
            return HandleTab(form);
        case VK_ESCAPE:
            if (!HasOpenList(message.hwnd)) form.UserEscape();
            return !HasOpenList(message.hwnd);
        case VK_RETURN:
            return !HasOpenList(message.hwnd) && UserEnter(form);
        case VK_RIGHT:
        case VK_DOWN:
            return UserArrow(form, 1);
        case VK_LEFT:
        case VK_UP:
            return UserArrow(form, -1);
        default:
            return HandleShortcut(form, message);
    }
}

}  // namespace

bool HandleKey(Form& form, Settling& settling, MSG& message) {
    if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
    const bool accessKey = message.message == WM_SYSCHAR && message.wParam < 0x80;
    if (!accessKey && message.message != WM_KEYDOWN) return TranslateForPage(message);
    // A slider's own keys are what it waits for.
    const bool belongsToForm = accessKey || message.wParam == VK_RETURN ||
                               message.wParam == VK_ESCAPE || !ShortcutOf(message.wParam).IsNone();
    if (belongsToForm) settling.Flush();
    if (accessKey) return UserAccessKey(form, static_cast<char>(message.wParam));
    return HandleKeyDown(form, message) || TranslateForPage(message);
}

}  // namespace morpho
