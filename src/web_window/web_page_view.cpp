#include "web_window/web_page_view.h"

#include <QContextMenuEvent>
#include <QMimeDatabase>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>

#include "qt/qt_text.h"
#include "web_host/page_walk.h"
#include "web_window/page_script.h"

namespace morpho {

namespace {

// Page scripts are off; this world is out of their reach all the same.
constexpr QWebEngineScript::ScriptWorldId kWorld = QWebEngineScript::ApplicationWorld;

QWebEngineScript SelectionScript() {
    QWebEngineScript script;
    script.setName("selection");
    script.setWorldId(kWorld);
    script.setInjectionPoint(QWebEngineScript::DocumentReady);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(kPageScript);
    return script;
}

}  // namespace

bool IsShownByBrowser(const std::string& name) {
    if (IsPageName(name)) return true;
    const QMimeType type =
        QMimeDatabase().mimeTypeForFile(ToQt(name), QMimeDatabase::MatchExtension);
    const QStringList pictures = {"image/gif", "image/jpeg", "image/png", "image/bmp"};
    return pictures.contains(type.name()) || type.inherits("text/plain");
}

WebPageView::WebPageView(PageServer& pages, std::shared_ptr<const WebFiles> web, QWidget* parent)
    : PageView(pages.Profile(), parent),
      pages_(pages),
      web_(std::move(web)),
      site_(pages.NewSite()),
      files_(std::make_shared<PageFiles>(web_)) {
    setContextMenuPolicy(Qt::DefaultContextMenu);
    page()->scripts().insert(SelectionScript());
    connect(this, &QWebEngineView::loadFinished, this, [this] { AskSelection(); });
    connect(this, &QWebEngineView::urlChanged, this, &WebPageView::AddressChanged);
}

WebPageView::~WebPageView() {
    pages_.Close(site_);
}

void WebPageView::ShowPage(const WebPath& page) {
    page_ = page;
    files_->Clear();
    // Keeps the files that the browser asks for, also after the view has gone.
    const auto files = files_;
    Open(pages_.Open(
        site_, [files](const PageServer::Names& names) { return files->Read(names); }, page));
}

void WebPageView::ReadAgain() {
    if (!FindFile(*web_, page_)) return;
    files_->Clear();
    Reload();
}

void WebPageView::StepPicture(int step) {
    Run(step > 0 ? kNextPicture : kPreviousPicture, [](const QVariant&) {});
}

void WebPageView::contextMenuEvent(QContextMenuEvent* event) {
    const QPoint place = event->globalPos();
    // The page has selected the picture by now, but its notice may still be on the way.
    AskSelection([this, place] { emit MenuAsked(place); });
}

bool WebPageView::Follows(const QUrl& link) {
    // The browser tells of a failed load, too, when the link is not followed.
    hasRefused_ = true;
    const auto names = PageServer::NamesIn(link);
    if (!names || !PageServer::IsOfScheme(link) || FromQt(link.host()) != site_) {
        emit LinkRefused("This address is outside of the web: " + link.toString());
        return false;
    }
    const auto file = FindFile(*web_, *names);
    if (!file) {
        emit LinkRefused("The web has no \"" + link.path().mid(1) + "\".");
        return false;
    }
    if (!IsShownByBrowser(file->back())) {
        emit LinkRefused("\"" + ToQt(file->back()) + "\" is neither a page nor a picture.");
        return false;
    }
    files_->Clear();
    if (file->size() == names->size()) {
        hasRefused_ = false;
        return true;
    }
    // The home page of a folder gets its own address, for what is relative to it. The browser is
    // sent there after its question has been answered.
    QMetaObject::invokeMethod(
        this, [this, file] { ShowPage(*file); }, Qt::QueuedConnection);
    return false;
}

void WebPageView::ScriptSays(const QString& message) {
    if (message == kSelectionNotice) AskSelection();
}

void WebPageView::AddressChanged(const QUrl& address) {
    const auto names = PageServer::NamesIn(address);
    if (!names || !PageServer::IsOfScheme(address)) return;
    page_ = FindFile(*web_, *names).value_or(*names);
    AskSelection();
    emit PageChanged();
}

void WebPageView::Run(const QString& script, const std::function<void(const QVariant&)>& result) {
    // The page answers what is left when it is destroyed, after this view.
    const std::weak_ptr<bool> alive = alive_;
    page()->runJavaScript(script, kWorld, [alive, result](const QVariant& value) {
        if (!alive.expired()) result(value);
    });
}

void WebPageView::AskSelection(const std::function<void()>& then) {
    Run(kAskSelection, [this, then](const QVariant& answer) {
        const QVariantMap values = answer.toMap();
        PageSelection now;
        const WebPath names = PageServer::NamesIn(values["url"].toUrl()).value_or(WebPath());
        now.page = FindFile(*web_, names).value_or(page_);
        const int picture = values.value("image", -1).toInt();
        if (picture >= 0) now.picture = picture;
        now.html = FromQt(values["text"].toString());
        const bool isOther = now != selection_;
        selection_ = std::move(now);
        if (isOther) emit SelectionChanged();
        if (then) then();
    });
}

}  // namespace morpho
