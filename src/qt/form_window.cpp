#include "qt/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QWindow>

#include "qt/peer_factory.h"
#include "qt/qt_text.h"

namespace morpho {

namespace {

Qt::WindowFlags FlagsOf(const Form& form) {
    Qt::WindowFlags flags =
        Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    if (form.HasCloseButton()) flags |= Qt::WindowCloseButtonHint;
    if (form.Border() == BorderStyle::kSizable)
        return Qt::Window | flags | Qt::WindowMinMaxButtonsHint;
    return Qt::Dialog | flags | Qt::MSWindowsFixedSizeDialogHint;
}

WindowState StateOf(const QWidget& window) {
    if (window.isMinimized()) return WindowState::kMinimized;
    return window.isMaximized() ? WindowState::kMaximized : WindowState::kNormal;
}

Qt::WindowState ToQt(WindowState state) {
    if (state == WindowState::kMinimized) return Qt::WindowMinimized;
    return state == WindowState::kMaximized ? Qt::WindowMaximized : Qt::WindowNoState;
}

// The screen that most of the place is on, or the first one.
QRect ScreenOf(const QRect& place) {
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    if (screen == nullptr) screen = QGuiApplication::primaryScreen();
    return screen->availableGeometry();
}

QSize SizeOf(const QMargins& margins) {
    return {margins.left() + margins.right(), margins.top() + margins.bottom()};
}

// Until the window manager has answered, Qt may work out a frame from windows that are still being
// moved into each other: of any size, negative ones included.
bool IsFrame(const QSize& chrome) {
    constexpr int kMaxChrome = 200;  // pixels, both sides together
    return chrome.width() >= 0 && chrome.height() >= 0 && chrome.width() <= kMaxChrome &&
           chrome.height() <= kMaxChrome;
}

}  // namespace

// A sizable window has no parent, so that it is in the task bar and can be minimised. Like every
// form it is modal to the whole program.
FormWindow::FormWindow(Form& form, QWidget* owner, PageServer& pages)
    : QDialog(form.Border() == BorderStyle::kSizable ? nullptr : owner, FlagsOf(form)),
      form_(form) {
    setObjectName(morpho::ToQt(form.Name()));
    setWindowModality(Qt::ApplicationModal);
    setAttribute(Qt::WA_QuitOnClose, false);
    // A page that has the focus would keep the key to itself.
    auto* const escape = new QShortcut(Qt::Key_Escape, this);
    connect(escape, &QShortcut::activated, this, &FormWindow::reject);
    PeerFactory factory({settling_, pages});
    factory.MakePeers(form, this);
    peers_ = factory.Take();
    focusConnection_ = connect(qApp, &QApplication::focusChanged, this,
                               [this](QWidget* /*old*/, QWidget* now) { FocusChanged(now); });
    create();
    windowHandle()->installEventFilter(this);
    const QSize chrome = SizeOf(windowHandle()->frameMargins());
    if (IsFrame(chrome)) lastNormalChrome_ = chrome;
    form.Attach(this);
    if (form.Focused() != nullptr) form.Focused()->SetFocus();
}

FormWindow::~FormWindow() {
    disconnect(focusConnection_);
    form_.Attach(nullptr);
    peers_.clear();
}

void FormWindow::RunUntilHidden(const std::function<void()>& stands) {
    stands_ = stands;
    form_.Load();
    if (!form_.IsVisible()) return;
    if (IsSizable()) {
        WriteOuterSize();
    } else {
        setFixedSize(InnerPixels());
    }
    move(PlaceOnScreen().topLeft());
    setWindowState(ToQt(form_.State()));
    show();
    loop_.exec();
}

Rectangle FormWindow::NormalPlacement() const {
    if (StateOf(*this) == WindowState::kNormal) return form_.Bounds();
    const QRect inner = normalGeometry();
    const QSize chrome = lastNormalChrome_;
    // Left, right and bottom borders are equally wide, the rest is the title.
    const int border = chrome.width() / 2;
    return ToTwips(
        {inner.topLeft() - QPoint(border, chrome.height() - border), inner.size() + chrome});
}

void FormWindow::Write(Aspects changed) {
    if (changed & aspect::kCaption) setWindowTitle(morpho::ToQt(form_.Caption()));
    if (changed & aspect::kPlace) WritePlace();
    if (changed & aspect::kPointer) {
        if (form_.Pointer() == MousePointer::kHourglass) {
            setCursor(Qt::WaitCursor);
        } else {
            unsetCursor();
        }
    }
    if ((changed & aspect::kWindowState) && isVisible()) {
        const auto others = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
        setWindowState(others | ToQt(form_.State()));
    }
    if ((changed & aspect::kVisible) && !form_.IsVisible()) {
        hide();
        loop_.quit();
    }
    if (changed & aspect::kToTop) {
        raise();
        activateWindow();
    }
}

Size FormWindow::Chrome() const {
    return ToTwips(lastNormalChrome_);
}

QSize FormWindow::InnerPixels() const {
    return ToPixels(form_.Inner());
}

void FormWindow::WritePlace() {
    if (!isVisible()) return;
    if (IsSizable()) {
        resize(InnerPixels());
    } else {
        setFixedSize(InnerPixels());
    }
    move(ToPixels(form_.Bounds()).topLeft());
}

// Where the window is first seen.
QRect FormWindow::PlaceOnScreen() const {
    const Rectangle& bounds = form_.Bounds();
    return ToPixels(MovedInto(bounds, ToTwips(ScreenOf(ToPixels(bounds)))));
}

// The frame counts as part of the outer size as soon as it is known.
void FormWindow::WriteOuterSize() {
    setMinimumSize((ToPixels(form_.MinimumSize()) - lastNormalChrome_).expandedTo({0, 0}));
    resize(PlaceOnScreen().size() - lastNormalChrome_);
}

// Not the paint event: the window itself is never painted when a control covers it all.
bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == windowHandle() && event->type() == QEvent::Expose && !painted_)
        QTimer::singleShot(0, this, [this] { FirstPainted(); });
    return QDialog::eventFilter(watched, event);
}

// Only now the window system has made the frame, so that a dialog opened by Form_Paint appears over
// this window.
void FormWindow::FirstPainted() {
    if (painted_ || !form_.IsVisible() || !windowHandle()->isExposed()) return;
    painted_ = true;
    if (StateOf(*this) == WindowState::kNormal) {
        const QSize chrome = frameGeometry().size() - size();
        if (IsFrame(chrome)) lastNormalChrome_ = chrome;
        if (IsSizable()) WriteOuterSize();
    }
    ReportGeometry();
    form_.Painted();
    if (stands_ && form_.IsVisible()) stands_();
}

void FormWindow::FocusChanged(QWidget* now) {
    for (; now != nullptr && now != this; now = now->parentWidget()) {
        for (const auto& peer : peers_) {
            const auto* const control = dynamic_cast<const ControlPeer*>(peer.get());
            if (control != nullptr && control->Widget() == now) {
                form_.FocusMoved(&control->Model());
                return;
            }
        }
    }
}

void FormWindow::reject() {
    settling_.Flush();
    form_.UserEscape();
}

// The form decides whether it goes, and hides itself.
void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    settling_.Flush();
    form_.UserClose();
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    GeometryChanged();
}

void FormWindow::moveEvent(QMoveEvent* event) {
    QDialog::moveEvent(event);
    GeometryChanged();
}

void FormWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) GeometryChanged();
}

// A size that the person drags is reported immediately. One that code asked for is read back later,
// when the window system has settled it; so is a change of state, because a form may show a message
// box for it.
void FormWindow::GeometryChanged() {
    if (!painted_) return;
    bool echo = true;
    Report([&] { echo = StateOf(*this) != form_.State(); });
    if (!echo) {
        ReportGeometry();
    } else if (!reportQueued_) {
        reportQueued_ = true;
        QTimer::singleShot(0, this, [this] {
            reportQueued_ = false;
            ReportGeometry();
        });
    }
}

void FormWindow::ReportGeometry() {
    if (!isVisible()) return;
    QRect frame = frameGeometry();
    if (!IsFrame(frame.size() - size())) frame = {pos(), size() + lastNormalChrome_};
    const QSize chrome = frame.size() - size();
    const WindowState state = StateOf(*this);
    if (state == WindowState::kNormal) lastNormalChrome_ = chrome;
    // Twips between two pixels are not lost as long as the pixels are the same.
    const Rectangle outer = ToPixels(form_.Bounds()) == frame ? form_.Bounds() : ToTwips(frame);
    const Size chromeTwips = ToTwips(chrome);
    form_.UserResize(outer, {outer.width - chromeTwips.width, outer.height - chromeTwips.height},
                     state);
}

}  // namespace morpho
