#pragma once

#include <QWebEngineView>

namespace morpho {

// Shows a page, and only shows it: no scripts, no network, no way to another page.
class PageView : public QWebEngineView {
  public:
    PageView(QWebEngineProfile* profile, QWidget* parent);

    void Open(const QUrl& page);
    // Shows the page and its pictures anew, at the same scroll position.
    void Reload();
    // Whether a page that was asked for is not there yet.
    bool IsLoading() const { return loading_; }

  private:
    bool loading_ = false;
};

}  // namespace morpho
