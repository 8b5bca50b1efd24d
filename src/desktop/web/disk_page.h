#pragma once

#include <memory>
#include <vector>

#include "desktop/css/css_reader.h"
#include "platform/front_page.h"

namespace morpho {

// A scratch page: open until it is closed, never saved. The window and the document that are handed
// out are views of it.
struct DiskPage {
    bool open = true;
    std::vector<std::shared_ptr<const std::vector<CssRule>>> styleSheets;
};

class DiskPageDocument : public PageDocument {
  public:
    explicit DiskPageDocument(std::shared_ptr<DiskPage> page) : page_(std::move(page)) {}

    void InsertAdjacentHtml(std::string_view where, std::string_view html) override;
    std::unique_ptr<StyleSheet> StyleSheetAt(int index) const override;

  private:
    std::shared_ptr<DiskPage> page_;
};

class DiskPageWindow : public PageWindow {
  public:
    explicit DiskPageWindow(std::shared_ptr<DiskPage> page) : page_(std::move(page)) {}

    std::unique_ptr<PageDocument> Document() override;
    // A blank page has no file, so `forceSave` is refused.
    void Close(bool forceSave) override;

  private:
    std::shared_ptr<DiskPage> page_;
};

class DiskWebWindow : public WebWindow {
  public:
    std::unique_ptr<PageWindow> AddPageWindow() override;
};

}  // namespace morpho
