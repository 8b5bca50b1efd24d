#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "qt/page_server.h"
#include "qt/page_view.h"
#include "web_host/web_files.h"
#include "web_window/page_files.h"

namespace morpho {

// What is selected in a page.
struct PageSelection {
    WebPath page = {};                // the page; in a frame, the frame's own
    std::optional<int> picture = {};  // which of the page's pictures (img elements), from 0
    std::string html = {};            // the selected text and pictures, where it is no picture

    bool operator==(const PageSelection&) const = default;
};

// A page of the web as a browser shows it, or a picture. A click on a picture selects it, a double
// click follows its link. Links lead to what the web has and a browser shows.
class WebPageView : public PageView {
    Q_OBJECT

  public:
    // `pages` must outlive it.
    WebPageView(PageServer& pages, std::shared_ptr<const WebFiles> web, QWidget* parent);
    ~WebPageView() override;

    // Shows a page of the web.
    void ShowPage(const WebPath& page);
    // The page that is shown: links lead from one to another.
    const WebPath& Page() const { return page_; }
    const PageSelection& Selection() const { return selection_; }
    // The files that the page was made of.
    const PageFiles& Files() const { return *files_; }
    // Selects the next picture (1), or the previous one (-1).
    void StepPicture(int step);
    // Whether the load that failed was a link that this view has not followed. Answers once.
    bool TakeRefusal() { return std::exchange(hasRefused_, false); }
    // Reads the page and its files again, if the web still has it.
    void ReadAgain();

  signals:
    void PageChanged();
    void SelectionChanged();
    // A right click, after it has selected what is there; `place` is a place on the screen.
    void MenuAsked(const QPoint& place);
    // A link is not followed; `reason` is a sentence.
    void LinkRefused(const QString& reason);

  protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool Follows(const QUrl& link) override;
    void ScriptSays(const QString& message) override;

  private:
    // Runs a script in the page, out of the reach of the page's own.
    void Run(const QString& script, const std::function<void(const QVariant&)>& result);
    void AskSelection(const std::function<void()>& then = {});
    void AddressChanged(const QUrl& address);

    PageServer& pages_;
    std::shared_ptr<const WebFiles> web_;
    std::string site_;
    WebPath page_;
    PageSelection selection_;
    bool hasRefused_ = false;
    std::shared_ptr<PageFiles> files_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);  // for answers that come late
};

// Whether a browser shows a file of this name: pages, pictures, texts.
bool IsShownByBrowser(const std::string& name);

}  // namespace morpho
