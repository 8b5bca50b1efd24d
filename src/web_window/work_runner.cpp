#include "web_window/work_runner.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QProgressBar>
#include <QThread>
#include <QTimer>
#include <exception>
#include <memory>

namespace morpho {

namespace {

constexpr int kMomentMilliseconds = 300;

// What comes from a person. Left in the queue it would reach the window after the work, as answers
// to what is no longer there.
bool IsInput(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::DragEnter:
        case QEvent::Drop:
        case QEvent::Close:
            return true;
        default:
            return false;
    }
}

}  // namespace

WorkRunner::WorkRunner(QProgressBar& bar) : bar_(bar) {
    bar_.hide();
}

WorkRunner::~WorkRunner() = default;

void WorkRunner::Run(const std::function<void()>& work) {
    if (isRunning_ || QThread::currentThread() != thread()) return work();
    std::exception_ptr failure;
    const std::unique_ptr<QThread> worker(QThread::create([&] {
        try {
            work();
        } catch (...) {
            failure = std::current_exception();
        }
    }));
    QEventLoop loop;
    connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
    QTimer moment;
    moment.setSingleShot(true);
    connect(&moment, &QTimer::timeout, &bar_, &QWidget::show);
    isRunning_ = true;
    bar_.setRange(0, 0);
    qApp->installEventFilter(this);
    moment.start(kMomentMilliseconds);
    worker->start();
    loop.exec();
    worker->wait();
    qApp->removeEventFilter(this);
    isRunning_ = false;
    bar_.hide();
    if (failure) std::rethrow_exception(failure);
}

LongWork WorkRunner::ForHost() {
    return {.run = [this](const std::function<void()>& work) { Run(work); },
            .advanced = [this](std::size_t done, std::size_t found) { Advance(done, found); }};
}

// The work may be done with thousands of pages before the bar is painted once: one event waits for
// the window, and shows the latest numbers.
void WorkRunner::Advance(std::size_t done, std::size_t found) {
    pagesDone_ = done;
    pagesFound_ = found;
    if (!isProgressPosted_.exchange(true))
        QMetaObject::invokeMethod(
            this, [this] { ShowProgress(); }, Qt::QueuedConnection);
}

void WorkRunner::ShowProgress() {
    isProgressPosted_ = false;
    bar_.setRange(0, static_cast<int>(pagesFound_));
    bar_.setValue(static_cast<int>(pagesDone_));
    bar_.setFormat(QString("%1 of %2 pages").arg(pagesDone_.load()).arg(pagesFound_.load()));
}

// A spontaneous close is ignored, not lost: the person can ask again.
bool WorkRunner::eventFilter(QObject* watched, QEvent* event) {
    if (!IsInput(event->type())) return QObject::eventFilter(watched, event);
    event->setAccepted(event->type() != QEvent::Close);
    return true;
}

}  // namespace morpho
