// The document of a page, in the shape that MSHTML gives it.

#include "text/ignoring_case.h"
#include "windows/front_page/front_page.h"
#include "windows_com/com_error.h"

namespace morpho::test {

namespace {

using Page = std::shared_ptr<PageDocument>;

HostObject Range(FrontPage& host, const std::string& html) {
    if (!host.selectsAsControl || html.empty())
        return host.Object("TextRange", {Get("htmlText", [html] { return html; })});
    const auto item = [&host, html](int) {
        return host.Object("Element", {Get("outerHTML", [html] { return html; })});
    };
    return host.Collection(
        "ControlRange", 0, [] { return 1; }, item);
}

HostObject Selection(FrontPage& host, const Page& page) {
    return host.Object("Selection", {Call("createRange", 0, [&host, page](const CallArguments&) {
                           return Range(host, page->SelectionHtml());
                       })});
}

HostObject Pictures(FrontPage& host, const Page& page) {
    const auto item = [&host, page](int index) {
        return host.Object("Image",
                           {Get("src", [page, index] { return page->ImageAddress(index); })});
    };
    return host.Collection(
        "Elements", 0, [page] { return page->ImageCount(); }, item);
}

HostObject AllElements(FrontPage& host, const Page& page) {
    return host.Object("All", {Call("tags", 1, [&host, page](const CallArguments& call) {
                           if (EqualIgnoringAsciiCase(TextOf(call[0]), "img"))
                               return Pictures(host, page);
                           throw ErrorOf(E_NOTIMPL, "Only pictures are listed here.");
                       })});
}

HostObject Body(FrontPage& host, const Page& page) {
    const auto insert = [page](const CallArguments& call) {
        page->InsertAdjacentHtml(TextOf(call[0]), TextOf(call[1]));
        return Variant();
    };
    return host.Object("Body", {Get("all", [&host, page] { return AllElements(host, page); }),
                                Call("insertAdjacentHTML", 2, insert)});
}

HostObject Style(FrontPage& host, const std::shared_ptr<StyleRule>& rule) {
    return host.Object("Style",
                       {Call("getAttribute", 2, [rule](const CallArguments& call) -> Variant {
                           const auto value = rule->Attribute(TextOf(call[0]));
                           return value ? Variant(*value) : Variant();
                       })});
}

HostObject Rules(FrontPage& host, const std::shared_ptr<StyleSheet>& sheet) {
    const auto item = [&host, sheet](int index) {
        const std::shared_ptr<StyleRule> rule = sheet->Rule(index);
        return host.Object("Rule", {Get("selectorText", [rule] { return rule->SelectorText(); }),
                                    Get("style", [&host, rule] { return Style(host, rule); })});
    };
    return host.Collection(
        "Rules", 0, [sheet] { return sheet->RuleCount(); }, item);
}

// The stand-in does not tell how many sheets its page has.
HostObject StyleSheets(FrontPage& host, const Page& page) {
    return host.Object(
        "StyleSheets", {Call("Item", 1, [&host, page](const CallArguments& call) {
            const std::shared_ptr<StyleSheet> sheet = page->StyleSheetAt(IntegerOf(call[0]));
            return host.Object("StyleSheet",
                               {Get("rules", [&host, sheet] { return Rules(host, sheet); })});
        })});
}

HostObject UndoObject(FrontPage& host, const std::shared_ptr<UndoTransaction>& undo) {
    return host.Object("UndoTransaction",
                       {Order("commit", [] {}), Order("abort", [undo] { undo->Abort(); })});
}

}  // namespace

HostObject PageDocumentObject(FrontPage& host, std::shared_ptr<PageDocument> page) {
    const auto begin = [&host, page](const CallArguments& call) {
        return UndoObject(host, page->BeginUndoTransaction(TextOf(call[0])));
    };
    return host.Object("Document",
                       {Get("url", [page] { return page->Url(); }),
                        Get("selection", [&host, page] { return Selection(host, page); }),
                        Get("body", [&host, page] { return Body(host, page); }),
                        Get("styleSheets", [&host, page] { return StyleSheets(host, page); }),
                        Call("createUndoTransaction", 1, begin)});
}

}  // namespace morpho::test
