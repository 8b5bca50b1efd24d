#pragma once

#include <QWebEngineView>
#include <functional>

namespace morpho {

// Shows a page without scripts or network. A link is followed only if the filter says so.
class PageView : public QWebEngineView {
  public:
    using LinkFilter = std::function<bool(const QUrl& link)>;

    // Without a filter all links are refused.
    PageView(QWebEngineProfile* profile, QWidget* parent, LinkFilter follows = {});

    void Open(const QUrl& page);
    // Shows the page and its pictures anew, at the same scroll position.
    void Reload();
    // Whether a page is still loading.
    bool IsLoading() const { return loading_; }

  private:
    bool loading_ = false;
};

}  // namespace morpho
