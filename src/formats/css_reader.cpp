#include "formats/css_reader.h"

#include <utility>

#include "formats/css_tokenizer.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

// The brackets open at a place, innermost last. A closing one that does not fit is just a token.
class OpenBrackets {
  public:
    // Takes the token into account; false for a closing bracket that closes nothing here.
    bool Take(CssTokenType type) {
        switch (type) {
            case CssTokenType::kOpenBrace:
                closers_.push_back(CssTokenType::kCloseBrace);
                break;
            case CssTokenType::kOpenBracket:
                closers_.push_back(CssTokenType::kCloseBracket);
                break;
            case CssTokenType::kOpenParenthesis:
            case CssTokenType::kFunction:
                closers_.push_back(CssTokenType::kCloseParenthesis);
                break;
            case CssTokenType::kCloseBrace:
            case CssTokenType::kCloseBracket:
            case CssTokenType::kCloseParenthesis:
                if (closers_.empty() || closers_.back() != type) return false;
                closers_.pop_back();
                break;
            default:
                break;
        }
        return true;
    }

    bool None() const { return closers_.empty(); }

  private:
    std::vector<CssTokenType> closers_;
};

// Collects the text of tokens without comments. A comment between two tokens leaves a blank, so
// that they stay two.
class TokenText {
  public:
    explicit TokenText(bool collapsesBlanks) : collapsesBlanks_(collapsesBlanks) {}

    void Add(const CssToken& token) {
        if (token.type == CssTokenType::kComment) {
            if (blanks_.empty()) blanks_ = " ";
        } else if (token.type == CssTokenType::kWhitespace) {
            blanks_ = collapsesBlanks_ ? " " : token.text;
        } else {
            if (!text_.empty()) text_ += blanks_;
            blanks_ = {};
            text_ += token.text;
        }
    }

    std::string Take() {
        blanks_ = {};
        return std::exchange(text_, {});
    }

  private:
    bool collapsesBlanks_;
    std::string text_;
    std::string_view blanks_;  // seen since the last token that counts
};

class CssReader {
  public:
    explicit CssReader(std::string_view text) : tokenizer_(text) { Advance(); }

    std::vector<CssRule> Rules() {
        std::vector<CssRule> rules;
        while (token_.type != CssTokenType::kEnd) {
            if (IsBlank() || token_.type == CssTokenType::kCommentDelimiter) {
                Advance();
            } else if (token_.type == CssTokenType::kAtKeyword) {
                SkipAtRule();
            } else {
                ReadRule(rules);
            }
        }
        return rules;
    }

  private:
    void Advance() { token_ = tokenizer_.Next(); }

    bool IsBlank() const {
        return token_.type == CssTokenType::kWhitespace || token_.type == CssTokenType::kComment;
    }

    // Up to and with its ";" or its block. A "}" that ends the block it stands in is left.
    void SkipAtRule() {
        OpenBrackets open;
        for (; token_.type != CssTokenType::kEnd; Advance()) {
            const bool outermost = open.None();
            if (outermost && token_.type == CssTokenType::kCloseBrace && insideBlock_) return;
            open.Take(token_.type);
            const bool blockEnded =
                token_.type == CssTokenType::kCloseBrace && !outermost && open.None();
            if (blockEnded || (outermost && token_.type == CssTokenType::kSemicolon))
                return Advance();
        }
    }

    void ReadRule(std::vector<CssRule>& rules) {
        OpenBrackets open;
        TokenText selector(true);
        while (!open.None() || token_.type != CssTokenType::kOpenBrace) {
            if (token_.type == CssTokenType::kEnd) return;
            open.Take(token_.type);
            selector.Add(token_);
            Advance();
        }
        Advance();
        CssRule rule{selector.Take(), {}};
        ReadBlock(rule.declarations);
        if (!rule.selector.empty()) rules.push_back(std::move(rule));
    }

    // The declarations up to and with the "}".
    void ReadBlock(std::vector<CssDeclaration>& declarations) {
        insideBlock_ = true;
        while (token_.type != CssTokenType::kEnd && token_.type != CssTokenType::kCloseBrace) {
            if (IsBlank() || token_.type == CssTokenType::kSemicolon) {
                Advance();
            } else if (token_.type == CssTokenType::kAtKeyword) {
                SkipAtRule();
            } else {
                ReadDeclaration(declarations);
            }
        }
        insideBlock_ = false;
        Advance();
    }

    // Up to the ";" or the block's "}". What is no "name: value" is passed over.
    void ReadDeclaration(std::vector<CssDeclaration>& declarations) {
        bool good = token_.type == CssTokenType::kIdent;
        const std::string_view name = token_.text;
        if (good) {
            Advance();
            while (IsBlank())
                Advance();
            good = token_.type == CssTokenType::kColon;
            if (good) Advance();
        }
        std::string value;
        good = ReadValue(value) && good;
        if (good && !value.empty())
            declarations.push_back({UnescapedCssName(name), std::move(value)});
    }

    // False when the value holds what no value may hold.
    bool ReadValue(std::string& value) {
        bool good = true;
        OpenBrackets open;
        TokenText text(false);
        for (; token_.type != CssTokenType::kEnd; Advance()) {
            const bool ends =
                token_.type == CssTokenType::kSemicolon || token_.type == CssTokenType::kCloseBrace;
            if (ends && open.None()) break;
            const bool bad =
                token_.type == CssTokenType::kBadString || token_.type == CssTokenType::kBadUrl;
            good = open.Take(token_.type) && !bad && good;
            text.Add(token_);
        }
        value = text.Take();
        return good;
    }

    CssTokenizer tokenizer_;
    CssToken token_;
    bool insideBlock_ = false;
};

}  // namespace

std::optional<std::string> CssRule::Value(std::string_view property) const {
    for (auto declaration = declarations.rbegin(); declaration != declarations.rend();
         ++declaration) {
        if (EqualIgnoringAsciiCase(declaration->name, property)) return declaration->value;
    }
    return {};
}

std::vector<CssRule> ReadCss(std::string_view text) {
    return CssReader(text).Rules();
}

}  // namespace morpho
