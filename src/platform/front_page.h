#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/command_bars.h"
#include "platform/run_time_error.h"

namespace morpho {

// The host's automation objects, named after its own, with the members that the editors use. The
// objects are views: the caller owns the view, the host owns what it shows. Texts are UTF-8,
// collections are zero-based. An index out of range and a call that the host refuses throw
// RunTimeError (kAutomation).

// A host that does not offer a member throws this.
inline RunTimeError NotOffered() {
    return RunTimeError(ErrorNumber::kAutomation, "The host does not offer this.");
}

// One rule of a style sheet.
class StyleRule {
  public:
    virtual ~StyleRule() = default;
    virtual std::string SelectorText() const = 0;
    // The declared value of a property, also of one that is unknown to CSS; names compare without
    // regard to case. Nothing when the rule does not declare it.
    virtual std::optional<std::string> Attribute(std::string_view name) const = 0;
};

class StyleSheet {
  public:
    virtual ~StyleSheet() = default;
    virtual int RuleCount() const = 0;
    virtual std::unique_ptr<StyleRule> Rule(int index) const = 0;
};

// Changes of a page document that can be undone together.
class UndoTransaction {
  public:
    virtual ~UndoTransaction() = default;
    // Takes all changes since the transaction began out again.
    virtual void Abort() = 0;
};

// The document of an open page.
class PageDocument {
  public:
    virtual ~PageDocument() = default;
    // The absolute address of the page.
    virtual std::string Url() const { throw NotOffered(); }
    // The selected text and pictures as HTML; empty when nothing is selected.
    virtual std::string SelectionHtml() const { throw NotOffered(); }
    // The pictures (img elements) of the body, in order of appearance.
    virtual int ImageCount() const { throw NotOffered(); }
    // The address of a picture, resolved against the page's.
    virtual std::string ImageAddress(int /*index*/) const { throw NotOffered(); }
    virtual std::unique_ptr<UndoTransaction> BeginUndoTransaction(std::string_view /*title*/) {
        throw NotOffered();
    }
    // Parses `html` and puts it into the body; `where` is "AfterBegin" or "BeforeEnd".
    virtual void InsertAdjacentHtml(std::string_view where, std::string_view html) = 0;
    // The style sheets of the document in order of appearance.
    virtual std::unique_ptr<StyleSheet> StyleSheetAt(int index) const = 0;
};

// Asks ThemeProperties for the theme's name.
inline constexpr int kThemeNameProperty = 0x2000000;

class PageWindow {
  public:
    virtual ~PageWindow() = default;
    virtual std::unique_ptr<PageDocument> Document() = 0;
    // The address of the page.
    virtual std::string Location() const = 0;
    // With kThemeNameProperty: the folder name of the page's theme; empty when it has none.
    virtual std::string ThemeProperties(int which) const = 0;
    // Gives the page this theme; `themeName` is a folder name, not a label.
    virtual void ApplyTheme(std::string_view themeName) = 0;
    // Closes the page; with `forceSave` its changes are saved first, without it they are dropped.
    virtual void Close(bool forceSave) = 0;
};

// The window of a web and the pages open in it.
class WebWindow {
  public:
    virtual ~WebWindow() = default;
    // Opens a new blank page.
    virtual std::unique_ptr<PageWindow> AddPageWindow() = 0;
    // The pages that are open.
    virtual int PageWindowCount() const = 0;
    virtual std::unique_ptr<PageWindow> PageWindowAt(int index) = 0;
};

struct Theme {
    std::string name;   // the theme's folder name
    std::string label;  // its display title
};

// A file of the open web.
struct WebFile {
    std::string name;       // with the extension
    std::string url;        // absolute
    std::string extension;  // without the full stop; empty for none
};

// A folder of the open web.
class WebFolder {
  public:
    virtual ~WebFolder() = default;
    virtual std::string Name() const = 0;
    virtual std::string Url() const = 0;  // absolute
    // The folders directly in this one, without hidden ones.
    virtual int FolderCount() const { throw NotOffered(); }
    virtual std::unique_ptr<WebFolder> FolderAt(int /*index*/) { throw NotOffered(); }
    // The files directly in this folder.
    virtual int FileCount() const { throw NotOffered(); }
    virtual WebFile FileAt(int /*index*/) const { throw NotOffered(); }
    // The folder of this name directly in this one; null when there is none.
    virtual std::unique_ptr<WebFolder> FindFolder(std::string_view name) = 0;
    // Creates a folder in this one and returns it; throws when the name exists.
    virtual std::unique_ptr<WebFolder> AddFolder(std::string_view name) = 0;
    // Imports a file of the disk under its own name. With `overwrite` it replaces a file of that
    // name as a whole; without it such a file makes the call throw.
    virtual void AddFile(std::string_view localPath, bool overwrite) = 0;
    // Deletes the folder with all contents. The object must not be used afterwards.
    virtual void Delete() = 0;
};

class Web {
  public:
    virtual ~Web() = default;
    virtual int ThemeCount() const = 0;
    virtual Theme ThemeAt(int index) const = 0;
    // With kThemeNameProperty: the folder name of the theme that the web as a whole uses; empty
    // when it has none.
    virtual std::string ThemeProperties(int which) const = 0;
    virtual std::unique_ptr<WebWindow> ActiveWebWindow() = 0;
    // The web's name for a person.
    virtual std::string Title() const { throw NotOffered(); }
    // The web's absolute address.
    virtual std::string Url() const = 0;
    virtual std::unique_ptr<WebFolder> RootFolder() = 0;
    // The folder at an address relative to the web, such as "_themes/blends"; null when the folder
    // does not exist or is hidden.
    virtual std::unique_ptr<WebFolder> LocateFolder(std::string_view url) = 0;
    // A meta-property of the web, such as "vti_showhiddenpages", as text; keys are in lower case.
    // Nothing when it is not set.
    virtual std::optional<std::string> Property(std::string_view key) const = 0;
    // Gives the web, and all pages that follow the web's theme, this theme; `themeName` is a folder
    // name, not a label.
    virtual void ApplyTheme(std::string_view themeName) = 0;
    // Reads the web's folders and files again.
    virtual void Refresh() = 0;
    virtual void RecalcHyperlinks() = 0;
};

// One save of a theme as a transaction over the web and the user's own themes. Commit keeps all
// changes made since BeginSave; without it all are rolled back. Refresh and RecalcHyperlinks are
// deferred until Commit.
class SaveTransaction {
  public:
    // Rolls back all changes unless they were committed.
    virtual ~SaveTransaction() = default;
    // Throws RunTimeError when the changes cannot be made, and rolls them back. An error in a
    // single page after that does not fail the save.
    virtual void Commit() = 0;
};

// Numbers of LanguageSettings::LanguageId.
enum class LanguageUse {
    kInstall = 1,
    kUserInterface = 2,
    kHelp = 3,
    kExecutionMode = 4,
    kPreviousUserInterface = 5
};

class LanguageSettings {
  public:
    virtual ~LanguageSettings() = default;
    // A Windows language identifier, such as 1033.
    virtual int LanguageId(LanguageUse use) const = 0;
};

class Application {
  public:
    virtual ~Application() = default;
    // The release, such as "6.0".
    virtual std::string Version() const = 0;
    virtual std::unique_ptr<CommandBars> Bars() { throw NotOffered(); }
    // The document of the page that the person works on; null when there is none.
    virtual std::unique_ptr<PageDocument> ActiveDocument() { return nullptr; }
    // An address as seen from another one, such as a page's. An absolute one comes back unchanged.
    virtual std::string MakeAbs(std::string_view /*baseUrl*/, std::string_view /*url*/) const {
        throw NotOffered();
    }
    // Shows again what the person sees of the web and of its pages.
    virtual void RefreshViews() { throw NotOffered(); }
    // The open web; null when there is none.
    virtual std::unique_ptr<Web> ActiveWeb() = 0;
    virtual std::unique_ptr<LanguageSettings> Languages() const = 0;
    // Begins to save a theme of this folder name, made from `sourceName`, in the open web. Throws
    // RunTimeError while another program saves there. Null where the host has no transactions (the
    // real one has none), or no web is open.
    virtual std::unique_ptr<SaveTransaction> BeginSave(std::string_view /*themeName*/,
                                                       std::string_view /*sourceName*/) {
        return nullptr;
    }
};

}  // namespace morpho
