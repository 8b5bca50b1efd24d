#include "qt/page_view.h"

#include <QWebEngineHistory>
#include <QWebEngineNewWindowRequest>
#include <QWebEnginePage>
#include <QWebEngineSettings>

#include "qt/page_server.h"

namespace morpho {

namespace {

void ShowOnly(QWebEngineSettings* settings) {
    using Setting = QWebEngineSettings;
    for (const auto unwanted :
         {Setting::JavascriptEnabled, Setting::PluginsEnabled, Setting::LocalStorageEnabled,
          Setting::FocusOnNavigationEnabled, Setting::ErrorPageEnabled,
          Setting::NavigateOnDropEnabled, Setting::LocalContentCanAccessFileUrls}) {
        settings->setAttribute(unwanted, false);
    }
}

// The faces that old pages were made for, or those of the same widths.
void UseClassicFonts(QWebEngineSettings* settings) {
    for (const auto family : {QWebEngineSettings::StandardFont, QWebEngineSettings::SerifFont})
        settings->setFontFamily(family, "Liberation Serif");
    settings->setFontFamily(QWebEngineSettings::SansSerifFont, "Liberation Sans");
    settings->setFontFamily(QWebEngineSettings::FixedFont, "Liberation Mono");
}

}  // namespace

class PageView::FilteredPage : public QWebEnginePage {
  public:
    FilteredPage(QWebEngineProfile* profile, PageView& view)
        : QWebEnginePage(profile, &view), view_(view) {
        // A link that asks for a window of its own is followed in this one.
        connect(this, &QWebEnginePage::newWindowRequested, this,
                [this](const QWebEngineNewWindowRequest& request) {
                    if (view_.Follows(request.requestedUrl())) setUrl(request.requestedUrl());
                });
    }

  protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override {
        if (type == NavigationTypeFormSubmitted) return false;
        const bool asked = type == NavigationTypeTyped || type == NavigationTypeReload;
        if (isMainFrame && !asked) return view_.Follows(url);
        return PageServer::IsOfScheme(url);
    }

    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel /*level*/, const QString& message,
                                  int /*line*/, const QString& /*source*/) override {
        view_.ScriptSays(message);
    }

  private:
    PageView& view_;
};

PageView::PageView(QWebEngineProfile* profile, QWidget* parent) : QWebEngineView(parent) {
    auto* const page = new FilteredPage(profile, *this);
    ShowOnly(page->settings());
    UseClassicFonts(page->settings());
    setPage(page);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setAcceptDrops(false);
    connect(page, &QWebEnginePage::loadFinished, this, [this] { loading_ = false; });
}

void PageView::Open(const QUrl& address) {
    loading_ = true;
    load(address);
    history()->clear();
}

void PageView::Reload() {
    loading_ = true;
    // A plain refresh, too, must read the pictures again: nothing tells when they were rewritten.
    triggerPageAction(QWebEnginePage::ReloadAndBypassCache);
}

}  // namespace morpho
