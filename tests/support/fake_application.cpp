#include "support/fake_application.h"

#include <algorithm>

#include "formats/blank_page.h"
#include "platform/run_time_error.h"
#include "shared/mod_shared_code.h"

namespace morpho::test {

namespace {

[[noreturn]] void Refuse(const std::string& text) {
    throw RunTimeError(ErrorNumber::kAutomation, text);
}

std::string PathOfUrl(std::string_view url) {
    return JoinPath(FakeApplication::kWebFolder, {url});
}

class ScratchPage : public BlankPageWindow {
  public:
    explicit ScratchPage(FakeApplication& host)
        : BlankPageWindow(std::make_shared<BlankPage>()), host_(host) {
        if (host_.refusesPages) Refuse("The page could not be opened");
        ++host_.openedPages;
        ++host_.openPages;
    }
    void Close(bool forceSave) override {
        BlankPageWindow::Close(forceSave);
        --host_.openPages;
    }

  private:
    FakeApplication& host_;
};

// The active page. Inserted HTML is one picture or a text.
class FakePage : public PageDocument {
  public:
    explicit FakePage(FakeApplication::ActivePage& page) : page_(page) {}
    std::string Url() const override { return page_.url; }
    std::string SelectionHtml() const override { return page_.selection; }
    int ImageCount() const override { return static_cast<int>(page_.pictures.size()); }
    std::string ImageAddress(int index) const override {
        return page_.pictures.at(static_cast<std::size_t>(index));
    }
    std::unique_ptr<UndoTransaction> BeginUndoTransaction(std::string_view) override {
        return std::make_unique<Undo>(page_);
    }
    void InsertAdjacentHtml(std::string_view, std::string_view html) override {
        constexpr std::string_view kImage = "<img src=";
        if (html.starts_with(kImage))
            page_.pictures.emplace(page_.pictures.begin(),
                                   html.substr(kImage.size(), html.size() - kImage.size() - 1));
    }
    std::unique_ptr<StyleSheet> StyleSheetAt(int) const override { throw NotOffered(); }

  private:
    class Undo : public UndoTransaction {
      public:
        explicit Undo(FakeApplication::ActivePage& page) : page_(page), before_(page.pictures) {}
        void Abort() override { page_.pictures = before_; }

      private:
        FakeApplication::ActivePage& page_;
        std::vector<std::string> before_;
    };

    FakeApplication::ActivePage& page_;
};

// A page of the web that is open for editing; only its theme matters.
class ThemedPage : public PageWindow {
  public:
    ThemedPage(FakeApplication& host, FakeApplication::OpenPage& page) : host_(host), page_(page) {}
    std::unique_ptr<PageDocument> Document() override { return nullptr; }
    std::string Location() const override { return page_.location; }
    std::string ThemeProperties(int which) const override {
        return which == kThemeNameProperty ? page_.theme : std::string();
    }
    void ApplyTheme(std::string_view themeName) override {
        page_.theme = themeName;
        host_.webCalls.push_back("ApplyTheme " + page_.theme + " to " + page_.location);
    }
    void Close(bool /*forceSave*/) override {}

  private:
    FakeApplication& host_;
    FakeApplication::OpenPage& page_;
};

class FakeWebWindow : public WebWindow {
  public:
    explicit FakeWebWindow(FakeApplication& host) : host_(host) {}
    std::unique_ptr<PageWindow> AddPageWindow() override {
        return std::make_unique<ScratchPage>(host_);
    }
    int PageWindowCount() const override { return static_cast<int>(host_.web->pages.size()); }
    std::unique_ptr<PageWindow> PageWindowAt(int index) override {
        return std::make_unique<ThemedPage>(host_,
                                            host_.web->pages.at(static_cast<std::size_t>(index)));
    }

  private:
    FakeApplication& host_;
};

// `url` is relative to the web; empty for its root.
class FakeWebFolder : public WebFolder {
  public:
    FakeWebFolder(FakeApplication& host, std::string url) : host_(host), url_(std::move(url)) {}
    std::string Name() const override { return FileNameOf(url_); }
    std::string Url() const override { return "file:///C:/Web/" + url_; }
    int FolderCount() const override { return static_cast<int>(Entries(true).size()); }
    std::unique_ptr<WebFolder> FolderAt(int index) override {
        return FindFolder(Entries(true).at(static_cast<std::size_t>(index)));
    }
    int FileCount() const override { return static_cast<int>(Entries(false).size()); }
    WebFile FileAt(int index) const override {
        const std::string name = Entries(false).at(static_cast<std::size_t>(index));
        return {name, Url() + '/' + name, name.substr(name.rfind('.') + 1)};
    }
    std::unique_ptr<WebFolder> FindFolder(std::string_view name) override {
        if (!host_.webFiles.HasFolder(PathOfUrl(Below(name)))) return nullptr;
        return std::make_unique<FakeWebFolder>(host_, Below(name));
    }
    std::unique_ptr<WebFolder> AddFolder(std::string_view name) override {
        host_.webFiles.CreateFolder(PathOfUrl(Below(name)));
        return std::make_unique<FakeWebFolder>(host_, Below(name));
    }
    void AddFile(std::string_view localPath, bool overwrite) override {
        const std::string file = PathOfUrl(Below(FileNameOf(localPath)));
        if (!overwrite && host_.webFiles.HasFile(file)) Refuse("The file exists");
        host_.webFiles.Copy(localPath, file);
    }
    void Delete() override { host_.webFiles.DeleteFolder(PathOfUrl(url_)); }

  private:
    std::vector<std::string> Entries(bool folders) const {
        std::vector<std::string> names;
        for (const FileEntry& entry : host_.webFiles.List(PathOfUrl(url_))) {
            if (entry.IsFolder() == folders) names.push_back(entry.name);
        }
        return names;
    }
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
        return host_.web->themes.at(static_cast<std::size_t>(index));
    }
    std::string ThemeProperties(int which) const override {
        return which == kThemeNameProperty ? host_.web->themeOfWeb : std::string();
    }
    std::unique_ptr<WebWindow> ActiveWebWindow() override {
        return std::make_unique<FakeWebWindow>(host_);
    }
    std::string Title() const override { return "Larkfell"; }
    std::string Url() const override { return std::string(kUrl); }
    std::unique_ptr<WebFolder> RootFolder() override {
        return std::make_unique<FakeWebFolder>(host_, std::string());
    }
    std::unique_ptr<WebFolder> LocateFolder(std::string_view url) override {
        if (url == kUrl) return RootFolder();
        if (url.starts_with(kUrl)) url.remove_prefix(kUrl.size() + 1);
        return FakeWebFolder(host_, {}).FindFolder(url);
    }
    std::optional<std::string> Property(std::string_view key) const override {
        return key == "vti_showhiddenpages" ? host_.web->showsHiddenPages : std::nullopt;
    }
    // The page index.htm, if there is one, then names the theme.
    void ApplyTheme(std::string_view themeName) override {
        const std::string page = PathOfUrl("index.htm");
        if (host_.webFiles.HasFile(page))
            host_.webFiles.WriteFile(page, "theme=" + std::string(themeName));
        host_.web->themeOfWeb = themeName;
        host_.webCalls.push_back("ApplyTheme " + std::string(themeName));
    }
    void Refresh() override {
        Touch("Refresh");
        host_.whenRefreshed();
    }
    void RecalcHyperlinks() override { Touch("RecalcHyperlinks"); }

  private:
    static constexpr std::string_view kUrl = "file:///C:/Web";

    void Touch(const std::string& call) {
        host_.webFiles.List(FakeApplication::kWebFolder);
        host_.webCalls.push_back(call);
    }

    FakeApplication& host_;
};

class FakeLanguages : public LanguageSettings {
  public:
    explicit FakeLanguages(const FakeApplication& host) : host_(host) {}
    int LanguageId(LanguageUse use) const override { return host_.languages.at(use); }

  private:
    const FakeApplication& host_;
};

}  // namespace

std::unique_ptr<Web> FakeApplication::ActiveWeb() {
    return web ? std::make_unique<FakeWeb>(*this) : nullptr;
}

std::unique_ptr<PageDocument> FakeApplication::ActiveDocument() {
    return page ? std::make_unique<FakePage>(*page) : nullptr;
}

std::string FakeApplication::MakeAbs(std::string_view baseUrl, std::string_view url) const {
    if (url.find(':') != std::string_view::npos) return std::string(url);
    return std::string(baseUrl.substr(0, baseUrl.rfind('/') + 1)) + std::string(url);
}

std::unique_ptr<LanguageSettings> FakeApplication::Languages() const {
    return std::make_unique<FakeLanguages>(*this);
}

}  // namespace morpho::test
