#include "support/fake_application.h"

#include "platform/ignoring_case.h"
#include "platform/run_time_error.h"
#include "shared/mod_shared_code.h"

namespace morpho::test {

namespace {

[[noreturn]] void Refuse(const std::string& text) {
    throw RunTimeError(ErrorNumber::kAutomation, text);
}

struct RuleData {
    std::string selector;
    std::vector<std::pair<std::string, std::string>> declarations;
};
using SheetData = std::vector<RuleData>;

std::string WithoutWhiteSpace(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1));
}

// Reads "selector{name:value;...}"; enough for style sheets without comments, strings and @-rules.
SheetData ReadRules(std::string_view css) {
    SheetData rules;
    for (auto open = css.find('{'); open != std::string_view::npos; open = css.find('{')) {
        RuleData rule{WithoutWhiteSpace(css.substr(0, open)), {}};
        const auto close = std::min(css.find('}', open), css.size());
        std::string_view body = css.substr(open + 1, close - open - 1);
        while (!body.empty()) {
            const auto end = std::min(body.find(';'), body.size());
            const std::string_view declaration = body.substr(0, end);
            const auto colon = declaration.find(':');
            if (colon != std::string_view::npos) {
                rule.declarations.emplace_back(WithoutWhiteSpace(declaration.substr(0, colon)),
                                               WithoutWhiteSpace(declaration.substr(colon + 1)));
            }
            body.remove_prefix(std::min(end + 1, body.size()));
        }
        rules.push_back(std::move(rule));
        css.remove_prefix(std::min(close + 1, css.size()));
    }
    return rules;
}

// The contents of the style elements, in order.
std::vector<SheetData> ReadSheets(const std::string& html) {
    const std::string lower = Lowered(html);
    std::vector<SheetData> sheets;
    for (auto at = lower.find("<style"); at != std::string::npos; at = lower.find("<style", at)) {
        at = std::min(lower.find('>', at), lower.size() - 1) + 1;
        const auto end = std::min(lower.find("</style", at), lower.size());
        sheets.push_back(ReadRules(std::string_view(html).substr(at, end - at)));
    }
    return sheets;
}

class FakeRule : public StyleRule {
  public:
    explicit FakeRule(RuleData data) : data_(std::move(data)) {}
    std::string SelectorText() const override { return data_.selector; }
    std::optional<std::string> Attribute(std::string_view name) const override {
        std::optional<std::string> value;  // the last declaration counts
        for (const auto& [declared, text] : data_.declarations) {
            if (EqualIgnoringCase(declared, name)) value = text;
        }
        return value;
    }

  private:
    RuleData data_;
};

class FakeSheet : public StyleSheet {
  public:
    explicit FakeSheet(SheetData rules) : rules_(std::move(rules)) {}
    int RuleCount() const override { return static_cast<int>(rules_.size()); }
    std::unique_ptr<StyleRule> Rule(int index) const override {
        if (index < 0 || index >= RuleCount()) Refuse("No such rule");
        return std::make_unique<FakeRule>(rules_[static_cast<std::size_t>(index)]);
    }

  private:
    SheetData rules_;
};

class FakeDocument : public PageDocument {
  public:
    FakeDocument(FakeApplication& host, std::shared_ptr<std::string> html)
        : host_(host), html_(std::move(html)) {}
    void InsertAdjacentHtml(std::string_view where, std::string_view html) override {
        if (where != "AfterBegin" && where != "BeforeEnd") Refuse("Invalid argument");
        html_->insert(where == "AfterBegin" ? 0 : html_->size(), html);
        host_.pageCalls.push_back("Insert " + std::string(where));
    }
    std::unique_ptr<StyleSheet> StyleSheetAt(int index) const override {
        const auto sheets = ReadSheets(*html_);
        if (index < 0 || index >= static_cast<int>(sheets.size())) Refuse("No such style sheet");
        return std::make_unique<FakeSheet>(sheets[static_cast<std::size_t>(index)]);
    }

  private:
    FakeApplication& host_;
    std::shared_ptr<std::string> html_;
};

class FakePage : public PageWindow {
  public:
    explicit FakePage(FakeApplication& host) : host_(host) {}
    std::unique_ptr<PageDocument> Document() override {
        return std::make_unique<FakeDocument>(host_, html_);
    }
    void Close(bool forceSave) override {
        host_.pageCalls.emplace_back(forceSave ? "Close saved" : "Close");
        --host_.openPages;
    }

  private:
    FakeApplication& host_;
    std::shared_ptr<std::string> html_ = std::make_shared<std::string>();
};

class FakeWebWindow : public WebWindow {
  public:
    explicit FakeWebWindow(FakeApplication& host) : host_(host) {}
    std::unique_ptr<PageWindow> AddPageWindow() override {
        if (host_.refusesPages) Refuse("The page could not be opened");
        host_.pageCalls.emplace_back("AddPageWindow");
        ++host_.openPages;
        return std::make_unique<FakePage>(host_);
    }

  private:
    FakeApplication& host_;
};

class FakeWeb : public Web {
  public:
    explicit FakeWeb(FakeApplication& host) : host_(host) {}
    int ThemeCount() const override { return static_cast<int>(host_.web->themes.size()); }
    Theme ThemeAt(int index) const override {
        if (index < 0 || index >= ThemeCount()) Refuse("No such theme");
        return host_.web->themes[static_cast<std::size_t>(index)];
    }
    std::string ThemeProperties(int which) const override {
        return which == kThemeNameProperty ? host_.web->themeOfWeb : std::string();
    }
    std::unique_ptr<WebWindow> ActiveWebWindow() override {
        return std::make_unique<FakeWebWindow>(host_);
    }

  private:
    FakeApplication& host_;
};

class FakeLanguages : public LanguageSettings {
  public:
    explicit FakeLanguages(std::map<LanguageUse, int> ids) : ids_(std::move(ids)) {}
    int LanguageId(LanguageUse use) const override {
        const auto id = ids_.find(use);
        return id == ids_.end() ? 0 : id->second;
    }

  private:
    std::map<LanguageUse, int> ids_;
};

}  // namespace

std::unique_ptr<Web> FakeApplication::ActiveWeb() {
    return web ? std::make_unique<FakeWeb>(*this) : nullptr;
}

std::unique_ptr<LanguageSettings> FakeApplication::Languages() const {
    return std::make_unique<FakeLanguages>(languages);
}

}  // namespace morpho::test
