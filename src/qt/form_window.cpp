#include "qt/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "qt/button_peers.h"
#include "qt/peer_factory.h"
#include "qt/qt_text.h"

namespace morpho {

namespace {

Qt::WindowFlags FlagsOf(BorderStyle border) {
    const auto common = Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                        Qt::WindowCloseButtonHint;
    if (border == BorderStyle::kSizable) return Qt::Window | common | Qt::WindowMinMaxButtonsHint;
    return Qt::Dialog | common | Qt::MSWindowsFixedSizeDialogHint;
}

WindowState StateOf(const QWidget& window) {
    if (window.isMinimized()) return WindowState::kMinimized;
    return window.isMaximized() ? WindowState::kMaximized : WindowState::kNormal;
}

Qt::WindowState ToQt(WindowState state) {
    if (state == WindowState::kMinimized) return Qt::WindowMinimized;
    return state == WindowState::kMaximized ? Qt::WindowMaximized : Qt::WindowNoState;
}

// The rectangle moved, and if need be shrunk, into the screen that it is on or nearest to.
QRect OnScreen(QRect wanted) {
    const QScreen* screen = QGuiApplication::screenAt(wanted.center());
    if (screen == nullptr) screen = QGuiApplication::primaryScreen();
    const QRect area = screen->availableGeometry();
    wanted.setSize(wanted.size().boundedTo(area.size()));
    wanted.moveLeft(std::clamp(wanted.left(), area.left(), area.right() + 1 - wanted.width()));
    wanted.moveTop(std::clamp(wanted.top(), area.top(), area.bottom() + 1 - wanted.height()));
    return wanted;
}

}  // namespace

// A sizable window is nobody's child, so that it has its own place in the task bar and can be
// minimised; like every form it is modal to the whole program.
FormWindow::FormWindow(Form& form, QWidget* owner, PageServer& pages)
    : QDialog(form.Border() == BorderStyle::kSizable ? nullptr : owner, FlagsOf(form.Border())),
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
    PlaceFirst();
    setWindowState(ToQt(form_.State()));
    create();
    windowHandle()->installEventFilter(this);
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

QSize FormWindow::InnerPixels() const {
    const Size inner = form_.Inner();
    return {morpho::ToPixels(inner.width), morpho::ToPixels(inner.height)};
}

void FormWindow::WritePlace() {
    if (IsSizable()) {
        resize(InnerPixels());
    } else {
        setFixedSize(InnerPixels());
    }
    if (isVisible()) {
        move(ToPixels(form_.Bounds()).topLeft());
    } else {
        placedByCode_ = !peers_.empty() && form_.IsLoaded();
    }
}

// Where the window is first seen: a sizable one where its bounds say, everything else in the middle
// of its owner or the screen.
void FormWindow::PlaceFirst() {
    const Rectangle& bounds = form_.Bounds();
    const bool placed = IsSizable() && (placedByCode_ || bounds.left != 0 || bounds.top != 0);
    QRect wanted = placed ? ToPixels(bounds) : QRect(QPoint(), size());
    if (!placed) {
        const QWidget* const owner = parentWidget();
        wanted.moveCenter(owner != nullptr && owner->isVisible()
                              ? owner->frameGeometry().center()
                              : QGuiApplication::primaryScreen()->availableGeometry().center());
    }
    wanted = OnScreen(wanted);
    if (IsSizable()) resize(wanted.size());
    if (placed) outerAsked_ = wanted.size();
    move(wanted.topLeft());
}

// Not the paint event: the window itself is never painted when a control covers it all.
bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == windowHandle() && event->type() == QEvent::Expose && !painted_)
        QTimer::singleShot(0, this, [this] { FirstPainted(); });
    return QDialog::eventFilter(watched, event);
}

// Only now does the window system's frame stand, and a dialog opened by Form_Paint appears over
// this window.
void FormWindow::FirstPainted() {
    if (painted_ || !form_.IsVisible() || !windowHandle()->isExposed()) return;
    painted_ = true;
    if (outerAsked_.isValid() && StateOf(*this) == WindowState::kNormal)
        resize(outerAsked_ - (frameGeometry().size() - size()));
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
    for (const auto& peer : peers_) {
        auto* const button = dynamic_cast<CommandButtonPeer*>(peer.get());
        if (button != nullptr && button->IsCancel() && button->Press()) return;
    }
    if (!IsSizable()) close();
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

// What the person drags is answered at once. What code asked for is read back when it has settled,
// and so is a change of state, which a form may answer with a message box.
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
    const QRect frame = frameGeometry();
    const QSize chrome = frame.size() - size();
    const WindowState state = StateOf(*this);
    if (state == WindowState::kNormal) lastNormalChrome_ = chrome;
    // Twips between two pixels are not lost as long as the pixels are the same.
    const Rectangle outer = ToPixels(form_.Bounds()) == frame ? form_.Bounds() : ToTwips(frame);
    const Size chromeTwips = ToTwips(chrome);
    form_.UserResize(outer, {outer.width - chromeTwips.width, outer.height - chromeTwips.height},
                     state);
    if (state == WindowState::kNormal) LearnMinimumSize(outer);
}

// A size that the form has just refused is not offered again, or window and form would fight over
// every step of the person's dragging.
void FormWindow::LearnMinimumSize(const Rectangle& offered) {
    if (!IsSizable() || form_.State() != WindowState::kNormal) return;
    if (form_.Bounds().width > offered.width) setMinimumWidth(InnerPixels().width());
    if (form_.Bounds().height > offered.height) setMinimumHeight(InnerPixels().height());
}

}  // namespace morpho
