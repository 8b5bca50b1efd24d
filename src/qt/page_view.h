#pragma once

#include <QWebEngineView>

namespace morpho {

// Shows a page without scripts, network or links to other pages.
class PageView : public QWebEngineView {
  public:
    PageView(QWebEngineProfile* profile, QWidget* parent);

    void Open(const QUrl& page);
    // Shows the page and its pictures anew, at the same scroll position.
    void Reload();
    // Whether a page is still loading.
    bool IsLoading() const { return loading_; }

  private:
    bool loading_ = false;
};

}  // namespace morpho
