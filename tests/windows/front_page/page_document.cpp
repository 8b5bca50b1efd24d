// The document of a page, in the shape that MSHTML gives it.

#include "text/ignoring_case.h"
#include "windows/front_page/front_page.h"

namespace morpho::test {

namespace {

using Page = std::shared_ptr<PageDocument>;

HostObject TextRange(FrontPage& host, const std::string& html) {
    return MakeObject({host.hooks, "TextRange", {{"htmlText", kGet, 0, [html](const HostCall&) {
                                                      return html;
                                                  }}}});
}

HostObject ControlRange(FrontPage& host, const std::string& html) {
    const auto item = [&host, html](int) {
        return MakeObject({host.hooks, "Element", {{"outerHTML", kGet, 0, [html](const HostCall&) {
                                                        return html;
                                                    }}}});
    };
    return MakeCollection(
        host.hooks, "ControlRange", 0, [] { return 1; }, item);
}

HostObject Selection(FrontPage& host, const Page& page) {
    return MakeObject({host.hooks,
                       "Selection",
                       {{"createRange", kCall, 0, [&host, page](const HostCall&) {
                             const std::string html = page->SelectionHtml();
                             const bool asControl = host.selectsAsControl && !html.empty();
                             return asControl ? ControlRange(host, html) : TextRange(host, html);
                         }}}});
}

HostObject Pictures(FrontPage& host, const Page& page) {
    const auto item = [&host, page](int index) {
        return MakeObject({host.hooks, "Image", {{"src", kGet, 0, [page, index](const HostCall&) {
                                                      return page->ImageAddress(index);
                                                  }}}});
    };
    return MakeCollection(
        host.hooks, "Elements", 0, [page] { return page->ImageCount(); }, item);
}

HostObject AllElements(FrontPage& host, const Page& page) {
    return MakeObject(
        {host.hooks, "All", {{"tags", kCall, 1, [&host, page](const HostCall& call) {
                                  if (EqualIgnoringAsciiCase(call.Text(0), "img"))
                                      return Pictures(host, page);
                                  throw HostRefusal{E_NOTIMPL, "Only pictures are listed here."};
                              }}}});
}

HostObject Body(FrontPage& host, const Page& page) {
    return MakeObject(
        {host.hooks,
         "Body",
         {{"all", kGet, 0, [&host, page](const HostCall&) { return AllElements(host, page); }},
          {"insertAdjacentHTML", kCall, 2, [page](const HostCall& call) {
               page->InsertAdjacentHtml(call.Text(0), call.Text(1));
               return HostValue();
           }}}});
}

HostObject Style(FrontPage& host, const std::shared_ptr<StyleRule>& rule) {
    return MakeObject({host.hooks,
                       "Style",
                       {{"getAttribute", kCall, 2, [rule](const HostCall& call) -> HostValue {
                             const auto value = rule->Attribute(call.Text(0));
                             if (!value) return {};
                             return *value;
                         }}}});
}

HostObject StyleSheetObject(FrontPage& host, const std::shared_ptr<StyleSheet>& sheet) {
    const auto item = [&host, sheet](int index) {
        const std::shared_ptr<StyleRule> rule = sheet->Rule(index);
        return MakeObject(
            {host.hooks,
             "Rule",
             {{"selectorText", kGet, 0, [rule](const HostCall&) { return rule->SelectorText(); }},
              {"style", kGet, 0, [&host, rule](const HostCall&) { return Style(host, rule); }}}});
    };
    const auto rules = [&host, sheet, item](const HostCall&) {
        return MakeCollection(
            host.hooks, "Rules", 0, [sheet] { return sheet->RuleCount(); }, item);
    };
    return MakeObject({host.hooks, "StyleSheet", {{"rules", kGet, 0, rules}}});
}

// The page tells no number of its sheets.
HostObject StyleSheets(FrontPage& host, const Page& page) {
    return MakeObject(
        {host.hooks, "StyleSheets", {{"Item", kCall | kGet, 1, [&host, page](const HostCall& call) {
                                          return StyleSheetObject(
                                              host, page->StyleSheetAt(call.Number(0)));
                                      }}}});
}

HostObject UndoObject(FrontPage& host, const std::shared_ptr<UndoTransaction>& undo) {
    return MakeObject({host.hooks,
                       "UndoTransaction",
                       {{"commit", kCall, 0, [](const HostCall&) { return HostValue(); }},
                        {"abort", kCall, 0, [undo](const HostCall&) {
                             undo->Abort();
                             return HostValue();
                         }}}});
}

}  // namespace

HostObject PageDocumentObject(FrontPage& host, std::shared_ptr<PageDocument> page) {
    return MakeObject(
        {host.hooks,
         "Document",
         {{"url", kGet, 0, [page](const HostCall&) { return page->Url(); }},
          {"isDirty", kGet, 0, [](const HostCall&) { return false; }},
          {"selection", kGet, 0, [&host, page](const HostCall&) { return Selection(host, page); }},
          {"body", kGet, 0, [&host, page](const HostCall&) { return Body(host, page); }},
          {"styleSheets", kGet, 0,
           [&host, page](const HostCall&) { return StyleSheets(host, page); }},
          {"createUndoTransaction", kCall, 1, [&host, page](const HostCall& call) {
               return UndoObject(host, page->BeginUndoTransaction(call.Text(0)));
           }}}});
}

}  // namespace morpho::test
