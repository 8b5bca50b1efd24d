#include "windows_toolkit/control_peer.h"

#include "forms/form.h"
#include "windows_system/wide.h"
#include "windows_toolkit/dpi.h"

namespace morpho {

namespace {

constexpr UINT_PTR kProcedure = 1;  // the id of ours
constexpr const wchar_t* kPeerProperty = L"MorphoPeer";

TOOLINFOW ToolOf(const PeerContext& context, HWND window, std::wstring& text) {
    TOOLINFOW tool{};
    // The newest size is unknown to the controls of version 5, which then show no tool tip.
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = context.window;
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    tool.lpszText = text.data();
    return tool;
}

}  // namespace

// A window that is made later goes below its siblings; a control that is declared later stands
// above them.
ControlPeer::ControlPeer(Control& control, HWND parent, const PeerContext& context,
                         const wchar_t* className, DWORD style, DWORD extendedStyle)
    : control_(control), context_(context) {
    const DWORD stop = control.TakesFocus() ? WS_TABSTOP : 0;
    window_ =
        CreateWindowExW(extendedStyle, className, L"", WS_CHILD | WS_CLIPSIBLINGS | stop | style, 0,
                        0, 0, 0, parent, nullptr, nullptr, nullptr);
    SetWindowPos(window_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    SetWindowSubclass(window_, &ControlPeer::Procedure, kProcedure,
                      reinterpret_cast<DWORD_PTR>(this));
    SetPropW(window_, kPeerProperty, this);
    SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(context.font), FALSE);
    std::wstring none;
    const TOOLINFOW tool = ToolOf(context_, window_, none);
    SendMessageW(context_.toolTips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

ControlPeer::~ControlPeer() {
    control_.Attach(nullptr);
    RemovePropW(window_, kPeerProperty);
    RemoveWindowSubclass(window_, &ControlPeer::Procedure, kProcedure);
    std::wstring none;
    const TOOLINFOW tool = ToolOf(context_, window_, none);
    SendMessageW(context_.toolTips, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    DestroyWindow(window_);
}

bool ControlPeer::IsEnabled() const {
    const Control* at = &control_;
    while (at != nullptr && at->Enabled())
        at = dynamic_cast<const Control*>(&at->Parent());
    return at == nullptr;
}

void ControlPeer::Write(Aspects changed) {
    if (changed & aspect::kPlace) {
        const RECT place = ToPixels(control_.Place(), context_.dpi);
        SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
                     place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (changed & aspect::kCaption) WriteToolTip();
    if (changed & aspect::kEnabled) WriteEnabled();
    WriteOwn(changed);
    if (changed & aspect::kVisible) ShowWindow(window_, control_.Visible() ? SW_SHOWNA : SW_HIDE);
    if (changed & (aspect::kEnabled | aspect::kVisible))
        PostMessageW(context_.window, kKeepFocus, 0, 0);
    // A window that is not the active one gives the focus to its control when it becomes active.
    if ((changed & aspect::kFocus) && GetActiveWindow() == context_.window) SetFocus(window_);
    if (changed & aspect::kRepaint)
        RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void ControlPeer::WriteToolTip() {
    std::wstring text = Wide(control_.ShownToolTip());
    const TOOLINFOW tool = ToolOf(context_, window_, text);
    SendMessageW(context_.toolTips, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

// In a frame that is disabled the controls look disabled, too.
void ControlPeer::WriteEnabled() {
    EnableWindow(window_, IsEnabled());
    const auto* const container = dynamic_cast<const Container*>(&control_);
    if (container == nullptr) return;
    for (HWND child = GetWindow(window_, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        if (ControlPeer* const peer = PeerOf(child)) peer->Show(aspect::kEnabled);
    }
}

LRESULT CALLBACK ControlPeer::Procedure(HWND window, UINT message, WPARAM wide, LPARAM low,
                                        UINT_PTR, DWORD_PTR self) {
    try {
        auto& peer = *reinterpret_cast<ControlPeer*>(self);
        if (const auto answer = TellPeer(message, wide, low)) return *answer;
        if (const auto answer = peer.OnMessage(message, wide, low)) return *answer;
        if (message == WM_SETFOCUS) peer.control_.OwnerForm().FocusMoved(&peer.control_);
    } catch (...) {
        // Nothing may leave a window procedure. What fails in a handler is the form's matter.
    }
    return DefSubclassProc(window, message, wide, low);
}

ControlPeer* PeerOf(HWND window) {
    return window == nullptr ? nullptr : static_cast<ControlPeer*>(GetPropW(window, kPeerProperty));
}

HWND WindowOf(HWND around, const Control& control) {
    for (HWND child = GetWindow(around, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        const ControlPeer* const peer = PeerOf(child);
        if (peer != nullptr && &peer->Model() == &control) return child;
        if (const HWND inside = WindowOf(child, control)) return inside;
    }
    return nullptr;
}

std::optional<LRESULT> TellPeer(UINT message, WPARAM wide, LPARAM low) {
    if (message == WM_NOTIFY) {
        const auto& header = *reinterpret_cast<const NMHDR*>(low);
        ControlPeer* const peer = PeerOf(header.hwndFrom);
        return peer == nullptr ? std::nullopt : peer->OnNotify(header);
    }
    if (message == WM_DRAWITEM) {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(low);
        if (ControlPeer* const peer = PeerOf(item.hwndItem)) peer->OnDraw(item);
        return TRUE;
    }
    const bool asksColour = message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    if (!asksColour && message != WM_COMMAND && message != WM_HSCROLL && message != WM_VSCROLL)
        return {};
    ControlPeer* const peer = PeerOf(reinterpret_cast<HWND>(low));
    if (peer == nullptr) return {};
    if (asksColour) {
        const HBRUSH brush = peer->OnColour(reinterpret_cast<HDC>(wide));
        return brush == nullptr ? std::nullopt : std::optional(reinterpret_cast<LRESULT>(brush));
    }
    if (message == WM_COMMAND) {
        peer->OnCommand(HIWORD(wide));
    } else {
        peer->OnScroll(LOWORD(wide));
    }
    return 0;
}

}  // namespace morpho
