#include "qt/window_picture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <vector>

#include "qt/page_view.h"

namespace morpho {

namespace {

constexpr int kStepMilliseconds = 50;  // a few frames
constexpr int kSameInARow = 2;
constexpr int kPatienceMilliseconds = 5000;

void Wait() {
    QEventLoop loop;
    QTimer::singleShot(kStepMilliseconds, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

std::vector<const PageView*> PagesIn(const QWidget* window) {
    std::vector<const PageView*> pages;
    for (const auto* const view : window->findChildren<QWebEngineView*>())
        if (const auto* const page = dynamic_cast<const PageView*>(view)) pages.push_back(page);
    return pages;
}

// A page is painted some frames after it has been loaded, and nothing says when: it is when nothing
// changes any more.
QImage SettledPicture(QWidget* window) {
    QElapsedTimer patience;
    patience.start();
    const std::vector<const PageView*> pages = PagesIn(window);
    const auto isLoading = [](const PageView* page) { return page->IsLoading(); };
    while (std::any_of(pages.begin(), pages.end(), isLoading) &&
           patience.elapsed() < kPatienceMilliseconds)
        Wait();
    QImage picture = window->grab().toImage();
    int same = pages.empty() ? kSameInARow : 0;
    while (same < kSameInARow && patience.elapsed() < kPatienceMilliseconds) {
        Wait();
        QImage later = window->grab().toImage();
        same = later == picture ? same + 1 : 0;
        picture = std::move(later);
    }
    return picture;
}

bool IsOver(const QWidget* dialog, const QWidget* window) {
    const QWidget* below = dialog->parentWidget();
    while (below != nullptr && below->window() != window)
        below = below->window()->parentWidget();
    return below != nullptr;
}

}  // namespace

QImage PictureOfWindow(QWidget* window, bool withDialogs) {
    QImage picture = SettledPicture(window);
    if (!withDialogs) return picture;
    QPainter painter(&picture);
    for (QWidget* const dialog : QApplication::topLevelWidgets()) {
        if (!dialog->isVisible() || !IsOver(dialog, window)) continue;
        const QRect place(dialog->pos() - window->pos(), dialog->size());
        painter.fillRect(place.adjusted(-1, -1, 1, 1), Qt::darkGray);
        painter.drawImage(place.topLeft(), SettledPicture(dialog));
    }
    return picture;
}

}  // namespace morpho
