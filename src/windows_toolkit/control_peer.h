#pragma once

#include <optional>

#include "forms/control.h"
#include "forms/peer.h"
#include "forms/settling.h"
#include "windows_system/win32.h"
// Needs the other one before it.
#include <commctrl.h>

namespace morpho {

// Messages of our own to the form's window. Sent by peers: a control was disabled or hidden, which
// may have had the focus.
inline constexpr UINT kKeepFocus = WM_APP;

// What the peers of one window share.
struct PeerContext {
    HWND window;    // the form's
    HWND toolTips;  // the window of the form's tool tips
    HFONT font;     // of the controls
    int dpi;        // pixels an inch of the window's monitor
    Settling& settling;
};

// Base of the peers that have a window: what all kinds of control have in common. The form's window
// sends here what the control tells its parent.
class ControlPeer : public Peer {
  public:
    ~ControlPeer() override;
    ControlPeer(const ControlPeer&) = delete;
    ControlPeer& operator=(const ControlPeer&) = delete;

    Control& Model() const { return control_; }
    HWND Window() const { return window_; }

    // Messages that the control's parent gets about it. `code` is that of WM_COMMAND.
    virtual void OnCommand(WORD /*code*/) {}
    // An answer to WM_NOTIFY; nothing: the default one.
    virtual std::optional<LRESULT> OnNotify(const NMHDR& /*header*/) { return {}; }
    // WM_HSCROLL and WM_VSCROLL, with the SB_ or TB_ code of the message.
    virtual void OnScroll(WORD /*code*/) {}
    // WM_DRAWITEM.
    virtual void OnDraw(const DRAWITEMSTRUCT& /*item*/) {}
    // WM_CTLCOLORSTATIC and its like; null: the default.
    virtual HBRUSH OnColour(HDC /*device*/) { return nullptr; }

  protected:
    // Creates the control's window, a child of `parent`, with this class and style (WS_CHILD is
    // added, WS_TABSTOP where the control takes the focus).
    ControlPeer(Control& control, HWND parent, const PeerContext& context, const wchar_t* className,
                DWORD style, DWORD extendedStyle = 0);

    void Write(Aspects changed) final;
    // The kind's own state: caption, value, entries, picture.
    virtual void WriteOwn(Aspects changed) = 0;
    void BeforeReport() final { context_.settling.Flush(); }
    // A message of the control's own window, before the control gets it; nothing: it gets it.
    virtual std::optional<LRESULT> OnMessage(UINT /*message*/, WPARAM /*wide*/, LPARAM /*low*/) {
        return {};
    }

    const PeerContext& Context() const { return context_; }
    // Whether the control and everything around it is enabled.
    bool IsEnabled() const;
    // Twips as pixels of the window's monitor.
    int Pixels(int twips) const { return MulDiv(twips, context_.dpi, 1440); }

  private:
    void WriteToolTip();
    void WriteEnabled();
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM low, UINT_PTR,
                                      DWORD_PTR self);

    Control& control_;
    PeerContext context_;
    HWND window_;
};

// The peer of a control's window; null when it is no control's.
ControlPeer* PeerOf(HWND window);

// The window of a control inside this window; null when it has none.
HWND WindowOf(HWND around, const Control& control);

// Hands a message that a parent gets about a control to the control's peer. Nothing: it is no such
// message, or the peer leaves it to the system.
std::optional<LRESULT> TellPeer(UINT message, WPARAM wide, LPARAM low);

}  // namespace morpho
