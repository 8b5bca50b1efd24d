#include "theme_editor/theme_loader.h"

#include "formats/url_value.h"
#include "platform/code_page.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "shared/log.h"
#include "shared/mod_shared_code.h"
#include "text/ignoring_case.h"

namespace morpho {

// A blank page of the host in which one style sheet at a time is parsed. It is closed without
// saving.
class ThemeLoader::ScratchPage {
  public:
    explicit ScratchPage(WebWindow& window) : window_(window) {}
    ~ScratchPage() {
        try {
            Close();
        } catch (const std::exception&) {
            // The host keeps the page open then; nothing of ours is in it.
        }
    }
    ScratchPage(const ScratchPage&) = delete;
    ScratchPage& operator=(const ScratchPage&) = delete;

    void Open(std::string_view html) {
        Close();
        page_ = window_.AddPageWindow();
        document_ = page_->Document();
        document_->InsertAdjacentHtml("AfterBegin", html);
    }

    void Close() {
        document_.reset();
        if (page_) page_->Close(false);
        page_.reset();
    }

    bool IsOpen() const { return document_ != nullptr; }
    std::unique_ptr<StyleSheet> FirstStyleSheet() const { return document_->StyleSheetAt(0); }

  private:
    WebWindow& window_;
    std::unique_ptr<PageWindow> page_;
    std::unique_ptr<PageDocument> document_;
};

void ThemeLoader::LoadTheme(const std::string& name, const std::string& source,
                            const std::string& workRoot) {
    elements_.Clear();
    workFolder_ = workRoot + "\\" + name;
    CopyTheme(source, workRoot);
    WriteLog(program_, "Loading theme \"" + name + "\"");
    ListElements();
    WriteLog(program_, "Theme loaded.");
}

void ThemeLoader::CopyTheme(const std::string& source, const std::string& workRoot) const {
    FileSystem& files = program_.platform.files;
    try {
        if (FolderExists(files, workRoot)) files.DeleteFolder(workRoot);
    } catch (const RunTimeError&) {
        // What is still there is overwritten below.
    }
    try {
        files.CreateFolder(workRoot);
    } catch (const RunTimeError&) {
        // It is there already, or the copy fails and says why.
    }
    files.CopyFolder(source, workFolder_);
}

void ThemeLoader::ListElements() {
    const std::unique_ptr<Web> web = program_.component.application->ActiveWeb();
    if (!web) throw RunTimeError(ErrorNumber::kObjectNotSet, "No web is open");
    const std::unique_ptr<WebWindow> window = web->ActiveWebWindow();
    ScratchPage page(*window);
    std::string_view file;
    std::string_view selector;
    for (const CatalogueElement& element : kCatalogue) {
        if (element.styleSheet != file) {
            file = element.styleSheet;
            selector = {};
            WriteLog(program_, "  Opening " + workFolder_ + std::string(file));
            page.Close();
            if (ReadStyleSheet(workFolder_ + std::string(file))) page.Open(styleHtml_);
        }
        if (element.selector != selector) {
            selector = element.selector;
            WriteLog(program_, "  Selector: " + std::string(selector));
            if (page.IsOpen()) FindRules(selector, *page.FirstStyleSheet());
        }
        if (page.IsOpen()) LookUp(element, *page.FirstStyleSheet());
    }
}

bool ThemeLoader::ReadStyleSheet(const std::string& path) {
    try {
        const std::string text =
            program_.platform.codePage.ToText(program_.platform.files.ReadFile(path));
        styleHtml_ = AsciiLowered(text).find("<style>") != std::string::npos
                         ? "\r\n" + text + "\r\n"
                         : "\r\n<style>\r\n" + text + "\r\n</style>\r\n";
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

// A sheet may have very many rules, and is asked for many elements of one selector.
void ThemeLoader::FindRules(std::string_view selector, const StyleSheet& sheet) {
    rules_.clear();
    for (int i = 0; i < sheet.RuleCount(); ++i) {
        if (EqualIgnoringAsciiCase(sheet.Rule(i)->SelectorText(), selector)) rules_.push_back(i);
    }
}

void ThemeLoader::LookUp(const CatalogueElement& element, const StyleSheet& sheet) {
    WriteLog(program_, "  Parsing " + std::to_string(sheet.RuleCount()) + " rules...");
    const std::string value = FindAttribute(element, sheet);
    if (value.empty()) return;
    WriteLog(program_, "    Attribute found: " + value);
    std::string name;
    if (IsUrlValue(value) && FileNameOfUrl(value, name)) ListPicture(element, name);
}

std::string ThemeLoader::FindAttribute(const CatalogueElement& element,
                                       const StyleSheet& sheet) const {
    for (const int index : rules_) {
        const std::unique_ptr<StyleRule> rule = sheet.Rule(index);
        WriteLog(program_, "  Selector found. Looking for attribute " +
                               std::string(element.Attribute()) + "...");
        const std::optional<std::string> value = rule->Attribute(element.Attribute());
        if (value && !value->empty()) return *value;
    }
    return {};
}

void ThemeLoader::ListPicture(const CatalogueElement& element, const std::string& name) {
    WriteLog(program_, "      file name: " + name);
    if (StaysInsideFolder(name) &&
        AnyFileMatches(program_.platform.files, workFolder_ + "\\" + name)) {
        elements_.Add(element.key, name);
    } else {
        WriteLog(program_, "        file not found");
    }
}

}  // namespace morpho
