#include "support/fake_application.h"

#include <algorithm>

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
    explicit FakePage(FakeApplication& host, FakeApplication::OpenPage* page = nullptr)
        : host_(host), page_(page) {}
    std::unique_ptr<PageDocument> Document() override {
        return std::make_unique<FakeDocument>(host_, html_);
    }
    std::string Location() const override { return page_ != nullptr ? page_->location : ""; }
    std::string ThemeProperties(int which) const override {
        return page_ != nullptr && which == kThemeNameProperty ? page_->theme : std::string();
    }
    void ApplyTheme(std::string_view themeName) override {
        if (page_ != nullptr) page_->theme = themeName;
        host_.webCalls.push_back("ApplyTheme " + std::string(themeName) + " to " + Location());
    }
    void Close(bool forceSave) override {
        host_.pageCalls.emplace_back(forceSave ? "Close saved" : "Close");
        --host_.openPages;
    }

  private:
    FakeApplication& host_;
    FakeApplication::OpenPage* page_;
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
    int PageWindowCount() const override { return static_cast<int>(host_.web->pages.size()); }
    std::unique_ptr<PageWindow> PageWindowAt(int index) override {
        if (index < 0 || index >= PageWindowCount()) Refuse("No such page");
        return std::make_unique<FakePage>(host_,
                                          &host_.web->pages[static_cast<std::size_t>(index)]);
    }

  private:
    FakeApplication& host_;
};

std::string PathOfUrl(std::string_view url) {
    std::string path = std::string(FakeApplication::kWebFolder) + '\\' + std::string(url);
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

// `url` is relative to the web; empty for its root.
class FakeWebFolder : public WebFolder {
  public:
    FakeWebFolder(FakeApplication& host, std::string url) : host_(host), url_(std::move(url)) {}
    std::string Name() const override { return FileNameOf(url_); }
    std::string Url() const override { return "file:///C:/Web/" + url_; }
    std::unique_ptr<WebFolder> FindFolder(std::string_view name) override {
        if (!host_.webFiles.HasFolder(PathOfUrl(Below(name)))) return nullptr;
        return std::make_unique<FakeWebFolder>(host_, Below(name));
    }
    std::unique_ptr<WebFolder> AddFolder(std::string_view name) override {
        host_.webFiles.CreateFolder(PathOfUrl(Below(name)));
        host_.webCalls.push_back("AddFolder " + Below(name));
        return std::make_unique<FakeWebFolder>(host_, Below(name));
    }
    void AddFile(std::string_view localPath, bool overwrite) override {
        const std::string url = Below(FileNameOf(localPath));
        if (!overwrite && host_.webFiles.HasFile(PathOfUrl(url))) Refuse("The file exists");
        host_.webFiles.CopyFile(localPath, PathOfUrl(url));
        host_.webCalls.push_back("AddFile " + url);
    }
    void Delete() override {
        host_.webFiles.DeleteFolder(PathOfUrl(url_));
        host_.webCalls.push_back("Delete " + url_);
    }

  private:
    std::string Below(std::string_view name) const {
        return url_.empty() ? std::string(name) : url_ + '/' + std::string(name);
    }

    FakeApplication& host_;
    std::string url_;
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
    std::string Url() const override { return "file:///C:/Web"; }
    std::unique_ptr<WebFolder> RootFolder() override {
        return std::make_unique<FakeWebFolder>(host_, std::string());
    }
    std::unique_ptr<WebFolder> LocateFolder(std::string_view url) override {
        if (!host_.webFiles.HasFolder(PathOfUrl(url))) return nullptr;
        return std::make_unique<FakeWebFolder>(host_, std::string(url));
    }
    std::optional<std::string> Property(std::string_view key) const override {
        const auto property = host_.web->properties.find(std::string(key));
        if (property == host_.web->properties.end()) return std::nullopt;
        return property->second;
    }
    // The page index.htm, if there is one, then names the theme.
    void ApplyTheme(std::string_view themeName) override {
        const std::string page = PathOfUrl("index.htm");
        if (host_.webFiles.HasFile(page))
            host_.webFiles.WriteFile(page, "theme=" + std::string(themeName));
        host_.web->themeOfWeb = themeName;
        host_.webCalls.push_back("ApplyTheme " + std::string(themeName));
    }
    void Refresh() override { Touch("Refresh"); }
    void RecalcHyperlinks() override { Touch("RecalcHyperlinks"); }

  private:
    void Touch(const std::string& call) {
        host_.webFiles.List(FakeApplication::kWebFolder);
        host_.webCalls.push_back(call);
    }

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
