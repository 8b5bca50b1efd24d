#pragma once

#include <optional>
#include <set>

#include "qt/page_server.h"
#include "qt/page_view.h"
#include "web_host/web_files.h"

namespace morpho {

class WebSession;

// What is selected in a page.
struct PageSelection {
    std::optional<int> picture;  // which of the page's pictures (img elements), from 0
    QString text;                // selected text; empty for none

    bool operator==(const PageSelection&) const = default;
};

// A page of the web as a browser shows it, or a picture. A click on a picture selects it.
class WebPageView : public PageView {
    Q_OBJECT

  public:
    // `pages` must outlive it.
    WebPageView(PageServer& pages, std::shared_ptr<WebSession> web, QWidget* parent);
    ~WebPageView() override;

    // Shows a page of the web.
    void ShowPage(const WebPath& page);
    // The page that is shown: links lead from one to another.
    const WebPath& Page() const { return page_; }
    // The files that the page consists of, as far as they have been read: itself and its pictures.
    const std::set<WebPath>& Files() const { return files_; }
    const PageSelection& Selection() const { return selection_; }
    // Selects a picture (from 0), or none.
    void SelectPicture(std::optional<int> picture);

  signals:
    void PageChanged();
    void SelectionChanged();
    // A right click, after it has selected what is there; `place` is a place on the screen.
    void MenuAsked(const QPoint& place);
    // A link that leads out of the web is not followed.
    void LinkRefused(const QString& address);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool Follows(const QUrl& link);
    void WatchMouse();
    // Runs a script in the page, out of the reach of the page's own.
    void Run(const QString& script, const std::function<void(const QVariant&)>& result);
    void SelectAt(const QPoint& place, const std::function<void()>& then);
    void SetSelection(PageSelection selection);

    PageServer& pages_;
    std::shared_ptr<WebSession> web_;
    std::string site_;
    WebPath page_;
    std::set<WebPath> files_;
    PageSelection selection_;
};

}  // namespace morpho
