#include "formats/blank_page.h"

#include "formats/style_elements.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

[[noreturn]] void Refuse(const char* sentence) {
    throw RunTimeError(ErrorNumber::kAutomation, sentence);
}

void RequireOpen(const BlankPage& page) {
    if (!page.open) Refuse("The page is closed.");
}

void RequireIndex(int index, std::size_t count, const char* sentence) {
    if (index < 0 || static_cast<std::size_t>(index) >= count) Refuse(sentence);
}

// A rule of a sheet that the page holds; the page lives on with it.
class ReadStyleRule : public StyleRule {
  public:
    explicit ReadStyleRule(std::shared_ptr<const CssRule> rule) : rule_(std::move(rule)) {}

    std::string SelectorText() const override { return rule_->selector; }
    std::optional<std::string> Attribute(std::string_view name) const override {
        return rule_->Value(name);
    }

  private:
    std::shared_ptr<const CssRule> rule_;
};

class ReadStyleSheet : public StyleSheet {
  public:
    explicit ReadStyleSheet(std::shared_ptr<const std::vector<CssRule>> rules)
        : rules_(std::move(rules)) {}

    int RuleCount() const override { return static_cast<int>(rules_->size()); }
    std::unique_ptr<StyleRule> Rule(int index) const override {
        RequireIndex(index, rules_->size(), "The style sheet has no such rule.");
        return std::make_unique<ReadStyleRule>(
            std::shared_ptr<const CssRule>(rules_, &(*rules_)[static_cast<std::size_t>(index)]));
    }

  private:
    std::shared_ptr<const std::vector<CssRule>> rules_;
};

}  // namespace

void BlankPageDocument::InsertAdjacentHtml(std::string_view where, std::string_view html) {
    RequireOpen(*page_);
    const bool atBegin = EqualIgnoringAsciiCase(where, "AfterBegin");
    if (!atBegin && !EqualIgnoringAsciiCase(where, "BeforeEnd"))
        Refuse("A page takes text after its beginning or before its end only.");
    auto& sheets = page_->styleSheets;
    auto place = atBegin ? sheets.begin() : sheets.end();
    for (const std::string_view style : StyleElements(html))
        place =
            sheets.insert(place, std::make_shared<const std::vector<CssRule>>(ReadCss(style))) + 1;
}

std::unique_ptr<StyleSheet> BlankPageDocument::StyleSheetAt(int index) const {
    RequireOpen(*page_);
    RequireIndex(index, page_->styleSheets.size(), "The page has no such style sheet.");
    return std::make_unique<ReadStyleSheet>(page_->styleSheets[static_cast<std::size_t>(index)]);
}

std::unique_ptr<PageDocument> BlankPageWindow::Document() {
    RequireOpen(*page_);
    return std::make_unique<BlankPageDocument>(page_);
}

std::string BlankPageWindow::ThemeProperties(int) const {
    RequireOpen(*page_);
    return {};
}

void BlankPageWindow::ApplyTheme(std::string_view) {
    RequireOpen(*page_);
    Refuse("A page without a name cannot take a theme.");
}

void BlankPageWindow::Close(bool forceSave) {
    RequireOpen(*page_);
    if (forceSave) Refuse("A page without a name cannot be saved.");
    page_->open = false;
}

}  // namespace morpho
