#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace morpho {

// The tokens that matter to a reader of rules; the rest are kOther.
enum class CssTokenType : unsigned char {
    kEnd,
    kWhitespace,
    kComment,
    kIdent,
    kFunction,   // an ident and its "("
    kAtKeyword,  // "@" and its ident
    kBadString,
    kBadUrl,
    kColon,
    kSemicolon,
    kOpenBrace,
    kCloseBrace,
    kOpenParenthesis,
    kCloseParenthesis,
    kOpenBracket,
    kCloseBracket,
    kCommentDelimiter,  // "<!--" or "-->"
    kOther,             // strings, numbers, addresses, hashes, delimiters
};

struct CssToken {
    CssTokenType type = CssTokenType::kEnd;
    std::string_view text;  // as written
};

// Splits a style sheet into tokens, after "4. Tokenization" of the W3C's CSS Syntax Module Level 3.
// Works on the text itself, in one pass; line ends of every kind are understood.
class CssTokenizer {
  public:
    // `text` must outlive the tokens.
    explicit CssTokenizer(std::string_view text) : text_(text) {}

    // The next token; kEnd again and again at the end.
    CssToken Next();

  private:
    CssTokenType ReadToken();
    CssTokenType ReadComment();
    CssTokenType ReadString(char quote);
    CssTokenType ReadHash();
    CssTokenType ReadAtSign();
    CssTokenType ReadIdentLike();
    CssTokenType ReadUrl();
    CssTokenType ReadBadUrl();
    CssTokenType ReadPunctuation(char character);
    void ReadNumeric();
    void ReadName();
    void ReadEscape();
    void SkipWhitespace();

    // The character that many places ahead; NUL behind the end.
    char Peek(std::size_t ahead = 0) const;
    bool AtEnd(std::size_t ahead = 0) const { return position_ + ahead >= text_.size(); }
    bool StartsWith(std::string_view start) const {
        return text_.substr(position_).starts_with(start);
    }
    bool EscapeAt(std::size_t ahead) const;
    bool IsNameAt(std::size_t ahead) const;
    bool IdentStartsAt(std::size_t ahead) const;
    bool NumberStartsHere() const;

    std::string_view text_;
    std::size_t position_ = 0;
};

// The name that an ident as written stands for: its escapes resolved.
std::string UnescapedCssName(std::string_view ident);

}  // namespace morpho
