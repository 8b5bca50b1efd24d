#include "windows_host/web_view.h"

#include <string>
#include <utility>

#include "windows_host/page_document_view.h"
#include "windows_host/web_folder_view.h"

namespace morpho {

namespace {

class PageWindowView : public PageWindow {
  public:
    explicit PageWindowView(DispatchCaller window) : window_(std::move(window)) {}

    std::unique_ptr<PageDocument> Document() override {
        return ViewOfDocument(window_.GetDispatch("Document"));
    }
    // The caption of a page's window is its address.
    std::string Location() const override { return TextOf(window_.Get("Caption")); }
    std::string ThemeProperties(int which) const override {
        return TextOf(window_.Get("ThemeProperties", {which}));
    }
    void ApplyTheme(std::string_view themeName) override {
        window_.Call("ApplyTheme", {themeName});
    }
    void Close(bool forceSave) override { window_.Call("Close", {forceSave}); }

  private:
    DispatchCaller window_;
};

std::unique_ptr<PageWindow> ViewOfPageWindow(DispatchCaller window) {
    if (!window) throw RunTimeError(ErrorNumber::kAutomation, "The host has no such page.");
    return std::make_unique<PageWindowView>(std::move(window));
}

class WebWindowView : public WebWindow {
  public:
    explicit WebWindowView(DispatchCaller window) : window_(std::move(window)) {}

    std::unique_ptr<PageWindow> AddPageWindow() override {
        return ViewOfPageWindow(window_.GetDispatch("PageWindows").GetDispatch("Add"));
    }
    int PageWindowCount() const override {
        return IntegerOf(window_.GetDispatch("PageWindows").Get("Count"));
    }
    std::unique_ptr<PageWindow> PageWindowAt(int index) override {
        return ViewOfPageWindow(window_.GetDispatch("PageWindows").GetDispatch("Item", {index}));
    }

  private:
    DispatchCaller window_;
};

class WebView : public Web {
  public:
    explicit WebView(DispatchCaller web) : web_(std::move(web)) {}

    int ThemeCount() const override { return IntegerOf(web_.GetDispatch("Themes").Get("Count")); }
    Theme ThemeAt(int index) const override {
        const DispatchCaller theme = web_.GetDispatch("Themes").GetDispatch("Item", {index});
        return {TextOf(theme.Get("Name")), TextOf(theme.Get("Label"))};
    }
    std::string ThemeProperties(int which) const override {
        return TextOf(web_.Get("ThemeProperties", {which}));
    }
    std::unique_ptr<WebWindow> ActiveWebWindow() override {
        DispatchCaller window = web_.GetDispatch("ActiveWebWindow");
        return window ? std::make_unique<WebWindowView>(std::move(window)) : nullptr;
    }
    std::string Title() const override { return TextOf(web_.Get("Title")); }
    std::string Url() const override { return TextOf(web_.Get("Url")); }
    std::unique_ptr<WebFolder> RootFolder() override {
        return ViewOfFolder(web_.GetDispatch("RootFolder"));
    }
    std::unique_ptr<WebFolder> LocateFolder(std::string_view url) override {
        return ViewOfFolder(web_.GetDispatch("LocateFolder", {url}));
    }
    std::optional<std::string> Property(std::string_view key) const override;
    void ApplyTheme(std::string_view themeName) override { web_.Call("ApplyTheme", {themeName}); }
    void Refresh() override { web_.Call("Refresh", {false}); }
    void RecalcHyperlinks() override { web_.Call("RecalcHyperlinks"); }

  private:
    DispatchCaller web_;
};

std::optional<std::string> WebView::Property(std::string_view key) const {
    const DispatchCaller properties = web_.GetDispatch("Properties");
    try {
        std::string value = TextOf(properties.Get("Item", {key}));
        if (!value.empty()) return value;
    } catch (const RunTimeError&) {
        // The collection refuses a key that is not set.
    }
    return std::nullopt;
}

}  // namespace

std::unique_ptr<Web> ViewOfWeb(DispatchCaller web) {
    return web ? std::make_unique<WebView>(std::move(web)) : nullptr;
}

}  // namespace morpho
