#include "windows_host/style_sheet_view.h"

#include <string>
#include <utility>

#include "formats/css_reader.h"

namespace morpho {

namespace {

class RuleView : public StyleRule {
  public:
    explicit RuleView(DispatchCaller rule) : rule_(std::move(rule)) {}

    std::string SelectorText() const override { return TextOf(rule_.Get("selectorText")); }

    std::optional<std::string> Attribute(std::string_view name) const override {
        const DispatchCaller style = rule_.GetDispatch("style");
        if (auto declared = Declared(style, name)) return declared;
        // A browser may leave what is unknown to CSS out of the text.
        if (!style.Has("getAttribute")) return std::nullopt;
        const Variant value = style.Get("getAttribute", {name});
        // Where it declares nothing, the answer is an empty text, or no text at all.
        if (value.Type() != VT_BSTR || TextOf(value).empty()) return std::nullopt;
        return TextOf(value);
    }

  private:
    // The value in the text of the declarations. It comes first, because a browser may answer the
    // single property with an absolute address.
    static std::optional<std::string> Declared(const DispatchCaller& style, std::string_view name) {
        if (!style.Has("cssText")) return std::nullopt;
        const auto rules = ReadCss("*{" + TextOf(style.Get("cssText")) + "}");
        return rules.empty() ? std::nullopt : rules.front().Value(name);
    }

    DispatchCaller rule_;
};

class SheetView : public StyleSheet {
  public:
    explicit SheetView(const DispatchCaller& sheet) : rules_(sheet.GetDispatch("rules")) {}

    int RuleCount() const override { return IntegerOf(rules_.Get("length")); }
    std::unique_ptr<StyleRule> Rule(int index) const override {
        DispatchCaller rule = rules_.GetDispatch("item", {index});
        if (!rule)
            throw RunTimeError(ErrorNumber::kAutomation, "The style sheet has no such rule.");
        return std::make_unique<RuleView>(std::move(rule));
    }

  private:
    DispatchCaller rules_;
};

}  // namespace

std::unique_ptr<StyleSheet> ViewOfStyleSheet(DispatchCaller sheet) {
    return std::make_unique<SheetView>(sheet);
}

}  // namespace morpho
