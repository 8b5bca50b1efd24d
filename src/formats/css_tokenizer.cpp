#include "formats/css_tokenizer.h"

#include <algorithm>

#include "text/ascii.h"
#include "text/ignoring_case.h"
#include "text/utf8.h"

namespace morpho {

namespace {

constexpr std::size_t kMaxHexDigits = 6;  // of one escape

bool IsNewline(char c) {
    return c == '\n' || c == '\r' || c == '\f';
}

bool IsWhitespace(char c) {
    return IsNewline(c) || c == ' ' || c == '\t';
}

bool IsHexDigit(char c) {
    return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// NUL counts as the replacement character, which may stand in a name.
bool IsNameStart(char c) {
    return IsLetter(c) || c == '_' || c == '\0' || static_cast<unsigned char>(c) >= 0x80;
}

bool IsName(char c) {
    return IsNameStart(c) || IsDigit(c) || c == '-';
}

bool IsNonPrintable(char c) {
    return (c > '\0' && c <= '\b') || c == '\v' || (c >= '\x0E' && c <= '\x1F') || c == '\x7F';
}

unsigned HexValue(char c) {
    if (IsDigit(c)) return static_cast<unsigned>(c - '0');
    return static_cast<unsigned>((c | 0x20) - 'a' + 10);
}

}  // namespace

CssToken CssTokenizer::Next() {
    const std::size_t start = position_;
    const CssTokenType type = ReadToken();
    return {type, text_.substr(start, position_ - start)};
}

CssTokenType CssTokenizer::ReadToken() {
    if (AtEnd()) return CssTokenType::kEnd;
    const char c = Peek();
    if (StartsWith("/*")) return ReadComment();
    if (IsWhitespace(c)) return SkipWhitespace(), CssTokenType::kWhitespace;
    if (c == '"' || c == '\'') return ReadString(c);
    if (c == '#') return ReadHash();
    if (c == '@') return ReadAtSign();
    if (NumberStartsHere()) return ReadNumeric(), CssTokenType::kOther;
    if (StartsWith("<!--")) return position_ += 4, CssTokenType::kCommentDelimiter;
    if (StartsWith("-->")) return position_ += 3, CssTokenType::kCommentDelimiter;
    if (IdentStartsAt(0)) return ReadIdentLike();
    return ReadPunctuation(c);
}

CssTokenType CssTokenizer::ReadComment() {
    const std::size_t end = text_.find("*/", position_ + 2);
    position_ = end == text_.npos ? text_.size() : end + 2;
    return CssTokenType::kComment;
}

CssTokenType CssTokenizer::ReadString(char quote) {
    for (++position_; !AtEnd(); ++position_) {
        const char c = Peek();
        if (c == quote) return ++position_, CssTokenType::kOther;
        if (IsNewline(c)) return CssTokenType::kBadString;
        if (c == '\\' && !AtEnd(1)) {
            ++position_;
            if (StartsWith("\r\n")) ++position_;
        }
    }
    return CssTokenType::kOther;
}

CssTokenType CssTokenizer::ReadHash() {
    ++position_;
    ReadName();
    return CssTokenType::kOther;
}

CssTokenType CssTokenizer::ReadAtSign() {
    ++position_;
    if (!IdentStartsAt(0)) return CssTokenType::kOther;
    ReadName();
    return CssTokenType::kAtKeyword;
}

CssTokenType CssTokenizer::ReadIdentLike() {
    const std::size_t start = position_;
    ReadName();
    if (Peek() != '(') return CssTokenType::kIdent;
    const std::string name = UnescapedCssName(text_.substr(start, position_ - start));
    ++position_;
    if (!EqualIgnoringAsciiCase(name, "url")) return CssTokenType::kFunction;
    std::size_t ahead = 0;
    while (IsWhitespace(Peek(ahead)))
        ++ahead;
    if (Peek(ahead) == '"' || Peek(ahead) == '\'') return CssTokenType::kFunction;
    return ReadUrl();
}

// An address without quotes, behind its "url(".
CssTokenType CssTokenizer::ReadUrl() {
    SkipWhitespace();
    while (!AtEnd()) {
        const char c = Peek();
        if (c == ')') return ++position_, CssTokenType::kOther;
        if (IsWhitespace(c)) {
            SkipWhitespace();
            if (!AtEnd() && Peek() != ')') return ReadBadUrl();
        } else if (c == '\\') {
            if (!EscapeAt(0)) return ReadBadUrl();
            ReadEscape();
        } else if (c == '"' || c == '\'' || c == '(' || IsNonPrintable(c)) {
            return ReadBadUrl();
        } else {
            ++position_;
        }
    }
    return CssTokenType::kOther;
}

CssTokenType CssTokenizer::ReadBadUrl() {
    while (!AtEnd() && Peek() != ')') {
        if (EscapeAt(0)) {
            ReadEscape();
        } else {
            ++position_;
        }
    }
    if (!AtEnd()) ++position_;
    return CssTokenType::kBadUrl;
}

CssTokenType CssTokenizer::ReadPunctuation(char character) {
    ++position_;
    switch (character) {
        case ':':
            return CssTokenType::kColon;
        case ';':
            return CssTokenType::kSemicolon;
        case '{':
            return CssTokenType::kOpenBrace;
        case '}':
            return CssTokenType::kCloseBrace;
        case '(':
            return CssTokenType::kOpenParenthesis;
        case ')':
            return CssTokenType::kCloseParenthesis;
        case '[':
            return CssTokenType::kOpenBracket;
        case ']':
            return CssTokenType::kCloseBracket;
        default:
            return CssTokenType::kOther;
    }
}

void CssTokenizer::ReadNumeric() {
    const auto readDigits = [this] {
        while (IsDigit(Peek()))
            ++position_;
    };
    if (Peek() == '+' || Peek() == '-') ++position_;
    readDigits();
    if (Peek() == '.' && IsDigit(Peek(1))) {
        ++position_;
        readDigits();
    }
    const bool sign = Peek(1) == '+' || Peek(1) == '-';
    if ((Peek() == 'e' || Peek() == 'E') && IsDigit(Peek(sign ? 2 : 1))) {
        position_ += sign ? 2 : 1;
        readDigits();
    }
    if (IdentStartsAt(0)) {
        ReadName();
    } else if (Peek() == '%') {
        ++position_;
    }
}

void CssTokenizer::ReadName() {
    while (IsNameAt(0) || EscapeAt(0)) {
        if (Peek() == '\\') {
            ReadEscape();
        } else {
            ++position_;
        }
    }
}

void CssTokenizer::ReadEscape() {
    ++position_;
    if (AtEnd()) return;
    std::size_t digits = 0;
    while (digits < kMaxHexDigits && IsHexDigit(Peek(digits)))
        ++digits;
    position_ += std::max<std::size_t>(digits, 1);
    if (digits == 0 || !IsWhitespace(Peek())) return;
    position_ += StartsWith("\r\n") ? 2 : 1;
}

void CssTokenizer::SkipWhitespace() {
    while (IsWhitespace(Peek()))
        ++position_;
}

char CssTokenizer::Peek(std::size_t ahead) const {
    return AtEnd(ahead) ? '\0' : text_[position_ + ahead];
}

bool CssTokenizer::EscapeAt(std::size_t ahead) const {
    return Peek(ahead) == '\\' && !IsNewline(Peek(ahead + 1));
}

bool CssTokenizer::IsNameAt(std::size_t ahead) const {
    return !AtEnd(ahead) && IsName(Peek(ahead));
}

bool CssTokenizer::IdentStartsAt(std::size_t ahead) const {
    if (AtEnd(ahead)) return false;
    if (Peek(ahead) != '-') return IsNameStart(Peek(ahead)) || EscapeAt(ahead);
    ++ahead;
    if (AtEnd(ahead)) return false;
    return IsNameStart(Peek(ahead)) || Peek(ahead) == '-' || EscapeAt(ahead);
}

bool CssTokenizer::NumberStartsHere() const {
    const std::size_t ahead = Peek() == '+' || Peek() == '-' ? 1 : 0;
    return IsDigit(Peek(ahead)) || (Peek(ahead) == '.' && IsDigit(Peek(ahead + 1)));
}

std::string UnescapedCssName(std::string_view ident) {
    std::string name;
    for (std::size_t i = 0; i < ident.size(); ++i) {
        if (ident[i] != '\\') {
            name += ident[i];
            continue;
        }
        char32_t character = 0;
        std::size_t digits = 0;
        while (digits < kMaxHexDigits && i + 1 < ident.size() && IsHexDigit(ident[i + 1])) {
            character = character << 4 | HexValue(ident[++i]);
            ++digits;
        }
        if (digits > 0) {
            AppendCharacter(name, character == 0 ? kReplacementCharacter : character);
            if (ident.substr(i + 1).starts_with("\r\n")) ++i;
            if (i + 1 < ident.size() && IsWhitespace(ident[i + 1])) ++i;
        } else if (i + 1 < ident.size()) {
            name += ident[++i];
        }
    }
    return name;
}

}  // namespace morpho
