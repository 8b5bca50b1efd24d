#include "web_window/web_page_view.h"

#include <QMouseEvent>
#include <QPointer>
#include <QWebEngineScript>

#include "qt/qt_text.h"
#include "web_host/limits.h"
#include "web_host/web_session.h"

namespace morpho {

namespace {

// The page that a server shows for a folder.
constexpr std::string_view kFolderPages[] = {"index.htm", "index.html", "default.htm"};

// Marks the picture of this index, or the one at a point, and unmarks all others; gives its index,
// or -1.
const char* const kSelect = R"((function(pick) {
    const pictures = document.body ? Array.from(document.body.getElementsByTagName('img')) : [];
    const index = pick(pictures);
    pictures.forEach(function(picture, i) {
        if (i === index) picture.style.setProperty('outline', '3px solid #1a73e8', 'important');
        else picture.style.removeProperty('outline');
    });
    return index;
})(function(pictures) { return %1; }))";

std::string ReadWebFile(const WebFiles& files, WebPath names) {
    const auto folder = files.FindFolder(names);
    if (folder) {
        for (const std::string_view page : kFolderPages) {
            const auto entry = folder->Find(page);
            if (entry) return ReadWholeFile(*folder, entry->name, kMaxFileBytes);
        }
    }
    if (names.empty()) throw RunTimeError(ErrorNumber::kFileNotFound, "The web has no home page.");
    const std::string name = names.back();
    names.pop_back();
    const auto parent = files.OpenFolder(names);
    const auto entry = parent->Find(name);
    return ReadWholeFile(*parent, entry ? entry->name : name, kMaxFileBytes);
}

}  // namespace

WebPageView::WebPageView(PageServer& pages, std::shared_ptr<WebSession> web, QWidget* parent)
    : PageView(pages.Profile(), parent, [this](const QUrl& link) { return Follows(link); }),
      pages_(pages),
      web_(std::move(web)),
      site_(pages.NewSite()) {
    connect(this, &QWebEngineView::loadFinished, this, &WebPageView::WatchMouse);
    connect(this, &QWebEngineView::selectionChanged, this, [this] {
        SetSelection({selection_.picture, selectedText()});
    });
    connect(this, &QWebEngineView::urlChanged, this, [this](const QUrl& address) {
        const auto names = PageServer::NamesIn(address);
        if (names && PageServer::IsOfScheme(address)) page_ = *names;
        files_ = {page_};
        SetSelection({});
        emit PageChanged();
    });
}

WebPageView::~WebPageView() {
    pages_.Close(site_);
}

void WebPageView::ShowPage(const WebPath& page) {
    page_ = page;
    const auto read = [this](const PageServer::Names& names) {
        files_.insert(names);
        return ReadWebFile(web_->Files(), names);
    };
    Open(pages_.Open(site_, read, page));
}

bool WebPageView::Follows(const QUrl& link) {
    if (PageServer::IsOfScheme(link) && FromQt(link.host()) == site_) return true;
    emit LinkRefused(link.toString());
    return false;
}

// The widget that gets the mouse is made with the page.
void WebPageView::WatchMouse() {
    if (QWidget* const target = focusProxy()) {
        target->removeEventFilter(this);
        target->installEventFilter(this);
    }
    if (selection_.picture) SelectPicture(selection_.picture);
}

bool WebPageView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        const auto* const mouse = static_cast<QMouseEvent*>(event);
        const QPoint screen = mouse->globalPosition().toPoint();
        const bool isRight = mouse->button() == Qt::RightButton;
        SelectAt(mouse->position().toPoint(), [this, screen, isRight] {
            if (isRight) emit MenuAsked(screen);
        });
    }
    return PageView::eventFilter(watched, event);
}

void WebPageView::SelectAt(const QPoint& place, const std::function<void()>& then) {
    const QString pick = QString("pictures.indexOf(document.elementFromPoint(%1, %2))");
    const qreal zoom = zoomFactor();
    const QString script = QString(kSelect).arg(pick.arg(place.x() / zoom).arg(place.y() / zoom));
    Run(script, [this, then](const QVariant& index) {
        const int picture = index.isValid() ? index.toInt() : -1;
        SetSelection({picture >= 0 ? std::optional(picture) : std::nullopt, selectedText()});
        then();
    });
}

void WebPageView::SelectPicture(std::optional<int> picture) {
    const QString pick = QString("pictures[%1] ? %1 : -1").arg(picture.value_or(-1));
    Run(QString(kSelect).arg(pick), [this](const QVariant& index) {
        const int found = index.isValid() ? index.toInt() : -1;
        SetSelection({found >= 0 ? std::optional(found) : std::nullopt, selectedText()});
    });
}

void WebPageView::Run(const QString& script, const std::function<void(const QVariant&)>& result) {
    const QPointer<WebPageView> self(this);
    page()->runJavaScript(script, QWebEngineScript::ApplicationWorld,
                          [self, result](const QVariant& value) {
                              if (self) result(value);
                          });
}

void WebPageView::SetSelection(PageSelection selection) {
    if (selection == selection_) return;
    selection_ = std::move(selection);
    emit SelectionChanged();
}

}  // namespace morpho
