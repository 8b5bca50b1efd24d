#include "formats/css_reader.h"

#include <utility>

#include "formats/css_tokenizer.h"
#include "text/ascii.h"
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

// Whether two tokens without anything between them are read as the same two. Not all such pairs.
bool StayTwo(char end, char begin) {
    constexpr std::string_view kNeverJoins = ")[]{}:;,>\"'";
    return end == '(' || kNeverJoins.find(end) != kNeverJoins.npos ||
           kNeverJoins.find(begin) != kNeverJoins.npos ||
           (!IsDigit(end) && (begin == '.' || begin == '#'));
}

// Collects the text of tokens without comments. Where two tokens could become one without the
// comment between them, an empty one stays in a selector, in which a blank has a meaning, and a
// blank in a value.
class TokenText {
  public:
    enum class Kind { kSelector, kValue };
    explicit TokenText(Kind kind) : kind_(kind) {}

    void Add(const CssToken& token) {
        if (token.type == CssTokenType::kComment) {
            hasComment_ = true;
        } else if (token.type == CssTokenType::kWhitespace) {
            blanks_ = kind_ == Kind::kSelector ? " " : token.text;
        } else {
            if (!text_.empty()) text_ += Between(token);
            text_ += token.text;
            blanks_ = {};
            hasComment_ = false;
        }
    }

    std::string Take() {
        blanks_ = {};
        hasComment_ = false;
        return std::exchange(text_, {});
    }

  private:
    std::string_view Between(const CssToken& next) const {
        if (!blanks_.empty() || !hasComment_ || StayTwo(text_.back(), next.text.front()))
            return blanks_;
        return kind_ == Kind::kSelector ? "/**/" : " ";
    }

    Kind kind_;
    std::string text_;
    // Seen since the last token that counts.
    std::string_view blanks_;
    bool hasComment_ = false;
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

    // No selector and no value may hold it.
    bool IsBroken() const {
        return token_.type == CssTokenType::kBadString || token_.type == CssTokenType::kBadUrl;
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
        TokenText selector(TokenText::Kind::kSelector);
        bool good = true;
        while (!open.None() || token_.type != CssTokenType::kOpenBrace) {
            if (token_.type == CssTokenType::kEnd) return;
            open.Take(token_.type);
            good = good && !IsBroken();
            selector.Add(token_);
            Advance();
        }
        Advance();
        CssRule rule{selector.Take(), {}};
        ReadBlock(rule.declarations);
        if (good && !rule.selector.empty()) rules.push_back(std::move(rule));
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
        TokenText text(TokenText::Kind::kValue);
        for (; token_.type != CssTokenType::kEnd; Advance()) {
            const bool ends =
                token_.type == CssTokenType::kSemicolon || token_.type == CssTokenType::kCloseBrace;
            if (ends && open.None()) break;
            good = open.Take(token_.type) && !IsBroken() && good;
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
