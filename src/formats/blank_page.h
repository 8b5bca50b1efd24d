#pragma once

#include <memory>
#include <vector>

#include "formats/css_reader.h"
#include "platform/front_page.h"

namespace morpho {

// A scratch page: open until it is closed, never saved. The window and the document that are handed
// out are views of it.
struct BlankPage {
    bool open = true;
    std::vector<std::shared_ptr<const std::vector<CssRule>>> styleSheets;
};

class BlankPageDocument : public PageDocument {
  public:
    explicit BlankPageDocument(std::shared_ptr<BlankPage> page) : page_(std::move(page)) {}

    void InsertAdjacentHtml(std::string_view where, std::string_view html) override;
    std::unique_ptr<StyleSheet> StyleSheetAt(int index) const override;

  private:
    std::shared_ptr<BlankPage> page_;
};

class BlankPageWindow : public PageWindow {
  public:
    explicit BlankPageWindow(std::shared_ptr<BlankPage> page) : page_(std::move(page)) {}

    std::unique_ptr<PageDocument> Document() override;
    std::string Location() const override { return "new_page.htm"; }
    // A blank page has no theme, and no file that could take one.
    std::string ThemeProperties(int which) const override;
    void ApplyTheme(std::string_view themeName) override;
    // A blank page has no file, so `forceSave` is refused.
    void Close(bool forceSave) override;

  private:
    std::shared_ptr<BlankPage> page_;
};

}  // namespace morpho
