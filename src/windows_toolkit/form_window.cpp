#include "windows_toolkit/form_window.h"

#include "windows_system/wide.h"
#include "windows_toolkit/dpi.h"
#include "windows_toolkit/form_keys.h"
#include "windows_toolkit/form_style.h"
#include "windows_toolkit/peer_factory.h"
#include "windows_toolkit/window_text.h"

namespace morpho {

namespace {

// Messages of our own, besides those of the peers.
constexpr UINT kFirstPaint = WM_APP + 1, kReadBack = WM_APP + 2;

constexpr wchar_t kFormClass[] = L"MorphoForm";

// Has no effect while the class is there.
const wchar_t* FormClass(WNDPROC procedure) {
    WNDCLASSEXW form{};
    form.cbSize = sizeof form;
    form.lpfnWndProc = procedure;
    form.hInstance = ModuleOf(reinterpret_cast<const void*>(procedure));
    form.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    form.hIcon = LoadIconW(form.hInstance, MAKEINTRESOURCEW(1));
    form.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    form.lpszClassName = kFormClass;
    RegisterClassExW(&form);
    return kFormClass;
}

}  // namespace

FormWindow::FormWindow(Form& form, HWND owner)
    : form_(form),
      owner_(owner),
      window_(CreateWindowExW(ExtendedStyleOf(form), FormClass(&FormWindow::Procedure), L"",
                              StyleOf(form), CW_USEDEFAULT, 0, 100, 100, owner, nullptr,
                              ModuleOf(reinterpret_cast<const void*>(&FormWindow::Procedure)),
                              nullptr)),
      dpi_(DpiOf(window_)),
      settling_(std::make_unique<TimedSettling>(window_)) {
    if (window_ == nullptr)
        throw RunTimeError(ErrorNumber::kInternal, "The window cannot be made.");
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    MakePeers();
    form.Attach(this);
}

FormWindow::~FormWindow() {
    form_.Attach(nullptr);
    RemovePeers();
    settling_.reset();
    if (window_ != nullptr) {
        SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
        DestroyWindow(window_);
    }
    // A library that is loaded again may be elsewhere, and the class would still call the old code.
    // The call has no effect while another form is open.
    UnregisterClassW(kFormClass, ModuleOf(reinterpret_cast<const void*>(&FormWindow::Procedure)));
}

void FormWindow::MakePeers() {
    font_ = FormFont(dpi_);
    toolTips_ = CreateWindowExW(
        WS_EX_TOPMOST, TOOLTIPS_CLASSW, L"", WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window_, nullptr, nullptr, nullptr);
    SendMessageW(toolTips_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    SendMessageW(toolTips_, TTM_SETMAXTIPWIDTH, 0, ToPixels(6000, dpi_));
    PeerFactory factory({window_, toolTips_, font_, dpi_, *settling_});
    factory.MakePeers(form_, window_);
    peers_ = factory.Take();
    // Access keys and the focus are always marked.
    SendMessageW(window_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEACCEL | UISF_HIDEFOCUS),
                 0);
}

// A frame's window takes those in it along, so what a frame holds goes first.
void FormWindow::RemovePeers() {
    while (!peers_.empty())
        peers_.pop_back();
    if (toolTips_ != nullptr) DestroyWindow(toolTips_);
    if (font_ != nullptr) DeleteObject(font_);
    toolTips_ = nullptr;
    font_ = nullptr;
}

void FormWindow::RunUntilHidden(const std::function<void()>& stands) {
    stands_ = stands;
    form_.Load();
    if (!form_.IsVisible()) return;
    const RECT place = PlaceOnScreen();
    SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    ownerEnabled_ = owner_ != nullptr && !EnableWindow(owner_, FALSE);
    ShowWindow(window_, ShowCommandOf(form_.State()));
    SetForegroundWindow(window_);
    PostMessageW(window_, kFirstPaint, 0, 0);
    RunMessages();
    // Enabled before this window goes: else the system would activate another program's window.
    if (ownerEnabled_) EnableWindow(owner_, TRUE);
    if (window_ != nullptr) ShowWindow(window_, SW_HIDE);
    if (ownerEnabled_) SetForegroundWindow(owner_);
}

void FormWindow::RunMessages() {
    MSG message;
    while (form_.IsVisible() && window_ != nullptr) {
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got > 0) {
            Dispatch(message);
            continue;
        }
        // The thread is to end: every loop around this one ends, too.
        form_.Hide();
        PostQuitMessage(static_cast<int>(message.wParam));
    }
}

void FormWindow::HandleWaiting() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        Dispatch(message);
}

void FormWindow::Dispatch(MSG& message) {
    const bool ours = message.hwnd == window_ || IsChild(window_, message.hwnd);
    if (ours && HandleKey(form_, *settling_, message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

void FormWindow::Write(Aspects changed) {
    if (window_ == nullptr) return;
    if (changed & aspect::kCaption) SetWindowTextW(window_, Wide(form_.Caption()).c_str());
    if (changed & aspect::kPlace) WritePlace();
    if (changed & aspect::kPointer)
        PostMessageW(window_, WM_SETCURSOR, reinterpret_cast<WPARAM>(window_), HTCLIENT);
    if ((changed & aspect::kPointer) && painted_)
        SetCursor(LoadCursorW(nullptr,
                              form_.Pointer() == MousePointer::kHourglass ? IDC_WAIT : IDC_ARROW));
    if ((changed & aspect::kWindowState) && IsWindowVisible(window_))
        ShowWindow(window_, ShowCommandOf(form_.State()));
    // The message loop ends by itself, but not before it gets a message.
    if ((changed & aspect::kVisible) && !form_.IsVisible()) PostMessageW(window_, WM_NULL, 0, 0);
    if (changed & aspect::kToTop) SetForegroundWindow(window_);
}

Size FormWindow::Chrome(const Form& form, int dpi) {
    const SIZE chrome = ChromeOf(StyleOf(form), ExtendedStyleOf(form), dpi);
    return {ToTwips(chrome.cx, dpi), ToTwips(chrome.cy, dpi)};
}

// The system's rectangle counts from the corner of the monitor's work area.
Rectangle FormWindow::NormalPlacement() const {
    if (window_ == nullptr || StateOf(window_) == WindowState::kNormal) return form_.Bounds();
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window_, &placement);
    RECT normal = placement.rcNormalPosition;
    const MONITORINFO monitor = MonitorOf(normal);
    OffsetRect(&normal, monitor.rcWork.left - monitor.rcMonitor.left,
               monitor.rcWork.top - monitor.rcMonitor.top);
    return ToTwips(normal, dpi_);
}

// Where the window is first seen.
RECT FormWindow::PlaceOnScreen() const {
    const Rectangle& bounds = form_.Bounds();
    const RECT work = MonitorOf(ToPixels(bounds, dpi_)).rcWork;
    return ToPixels(MovedInto(bounds, ToTwips(work, dpi_)), dpi_);
}

void FormWindow::WritePlace() {
    if (!IsWindowVisible(window_)) return;
    const RECT place = ToPixels(form_.Bounds(), dpi_);
    SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::FirstPainted() {
    if (painted_ || !form_.IsVisible()) return;
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    painted_ = true;
    ReportGeometry();
    form_.Painted();
    if (stands_ && form_.IsVisible()) stands_();
}

// A size that the person drags is reported immediately; one that code asked for is read back later,
// because the system may have granted another.
void FormWindow::GeometryChanged() {
    if (!painted_) return;
    bool echo = true;
    Report([&] { echo = false; });
    if (echo) {
        PostMessageW(window_, kReadBack, 0, 0);
    } else {
        ReportGeometry();
    }
}

void FormWindow::ReportGeometry() {
    if (!IsWindowVisible(window_)) return;
    const WindowState state = StateOf(window_);
    RECT outer, inner;
    GetWindowRect(window_, &outer);
    GetClientRect(window_, &inner);
    // Twips between two pixels are not lost as long as the pixels are the same.
    const RECT known = ToPixels(form_.Bounds(), dpi_);
    Rectangle bounds = EqualRect(&known, &outer) ? form_.Bounds() : ToTwips(outer, dpi_);
    const Size chrome{ToTwips(outer.right - outer.left - inner.right, dpi_),
                      ToTwips(outer.bottom - outer.top - inner.bottom, dpi_)};
    form_.UserResize(bounds, {bounds.width - chrome.width, bounds.height - chrome.height}, state);
}

// The peers are made anew: every size in them depends on the resolution.
void FormWindow::DpiChanged(int dpi, const RECT& suggested) {
    settling_->Flush();
    RemovePeers();
    dpi_ = dpi;
    MakePeers();
    SetWindowPos(window_, nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
    ReportGeometry();
}

// The control that had the focus last gets it, or the first one.
void FormWindow::GiveFocus() {
    if (form_.Focused() == nullptr || !form_.Focused()->IsOperable()) {
        const std::vector<Control*> stops = TabStops(form_);
        if (!stops.empty()) return stops.front()->SetFocus();
    }
    if (form_.Focused() != nullptr) form_.Focused()->SetFocus();
}

// A control that cannot be operated any more passes the focus on, so that keys still reach the
// form.
void FormWindow::KeepFocus() {
    const Control* const focused = form_.Focused();
    if (GetActiveWindow() != window_ || focused == nullptr || focused->IsOperable()) return;
    if (Control* const next = NextTabStop(form_, false)) {
        next->SetFocus();
    } else {
        SetFocus(window_);
    }
}

// The owner took the window along.
void FormWindow::Gone() {
    window_ = nullptr;
    form_.Hide();
}

LRESULT CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM wide, LPARAM low) {
    auto* const self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    try {
        if (self != nullptr) {
            if (const auto answer = TellPeer(message, wide, low)) return *answer;
            if (const auto answer = self->OnMessage(message, wide, low)) return *answer;
        }
    } catch (...) {
        // Nothing may leave a window procedure. What fails in a handler is the form's matter.
    }
    return DefWindowProcW(window, message, wide, low);
}

std::optional<LRESULT> FormWindow::OnMessage(UINT message, WPARAM wide, LPARAM low) {
    switch (message) {
        case WM_CLOSE:
            settling_->Flush();
            form_.UserClose();
            return 0;
        case WM_SETFOCUS:
            GiveFocus();
            return 0;
        case WM_SETCURSOR:
            if (form_.Pointer() != MousePointer::kHourglass || LOWORD(low) != HTCLIENT) return {};
            SetCursor(LoadCursorW(nullptr, IDC_WAIT));
            return TRUE;
        case WM_GETMINMAXINFO: {
            const RECT least =
                ToPixels({0, 0, form_.MinimumSize().width, form_.MinimumSize().height}, dpi_);
            reinterpret_cast<MINMAXINFO*>(low)->ptMinTrackSize = {least.right, least.bottom};
            return 0;
        }
        case WM_DPICHANGED:
            DpiChanged(HIWORD(wide), *reinterpret_cast<const RECT*>(low));
            return 0;
        case WM_WINDOWPOSCHANGED:
            GeometryChanged();
            return {};
        case WM_DESTROY:
            Gone();
            return {};
        default:
            return OnOwnMessage(message);
    }
}

std::optional<LRESULT> FormWindow::OnOwnMessage(UINT message) {
    if (message == kFirstPaint) FirstPainted();
    if (message == kReadBack) ReportGeometry();
    if (message == kKeepFocus) KeepFocus();
    return {};
}

}  // namespace morpho
