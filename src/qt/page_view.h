#pragma once

#include <QWebEngineView>

namespace morpho {

// Shows a page without scripts or network. All links are refused; a derived view may follow some.
class PageView : public QWebEngineView {
  public:
    PageView(QWebEngineProfile* profile, QWidget* parent);

    void Open(const QUrl& page);
    // Shows the page and its pictures anew, at the same scroll position.
    void Reload();
    // Whether a page is still loading.
    bool IsLoading() const { return loading_; }

  protected:
    // Whether the browser may go where a link leads.
    virtual bool Follows(const QUrl& /*link*/) { return false; }
    // A script of the view, never one of the page, has written this to the console.
    virtual void ScriptSays(const QString& /*message*/) {}

  private:
    class FilteredPage;

    bool loading_ = false;
};

}  // namespace morpho
