#include "css_made_sheets.h"

#include <random>

namespace {

const char* const kOddSheets[] = {
    // Comments.
    "a { color: red /* ; } */ }",
    "/* a */ b /**/ i { /* c */ color /* d */ : /* e */ red /* f */ ; /* g */ }",
    "a { color: red; /* never closed ; top: 0 }",
    "a/**/b { color: red } p { co/**/lor: red; top: 1px }",
    // Escapes.
    "\\61 { color: red } .\\31 23 { top: 0 } #\\000062z { top: 1px }",
    "a { c\\6f lor: red; \\74\\6f\\70 : 1px; background-image: url(a\\).gif) }",
    "a { content: \"a\\\nb\\\"c\\26 d\"; background-image: url('a\\'b.gif') }",
    "a\\{b { color: red } p { top: 1px }",
    // Strings.
    "a { content: '}'; color: red } p { content: \"; }\" }",
    "a { content: 'never closed\n; color: red } p { top: 1px }",
    "a { content: 'never closed; color: red } p { top: 1px }",
    // Rules that begin with "@".
    "@charset \"utf-8\"; a { color: red }",
    "@import url(a.css); @import 'b.css' screen; a { color: red }",
    "@media screen { a { color: red } @media (min-width: 1px) { p { top: 0 } } } b { top: 1px }",
    "@media screen { a { color: red } b { top: 1px }",
    "@font-face { font-family: x; src: url(x.ttf) } a { color: red }",
    "@unknown a b { c: d } ; a { color: red } p { top: 0 }",
    "a { @unknown x; color: red; @other { y: z } ; top: 1px }",
    // What is missing, and what is too much.
    "a { color: red top: 1px; left: 2px }",
    "a { color: red; top }",
    "a { ; ; color: red ;; }",
    "a { color: red } } p { top: 1px } b { top: 2px }",
    "a { color: red",
    "a { background-image: url(a.gif",
    "a { background-image: url('a.gif",
    "a { } p b { color: red }",
    "{ color: red } a { top: 1px }",
    "a { color: (red; top: 1px } p { left: 0 } ) } b { top: 0 }",
    "a { width: calc(1px + [2px); top: 1px } ]) ; left: 0 } b { top: 0 }",
    "a { --x: { a: b; c: d }; color: red }",
    "a { color: red; { top: 1px } left: 2px; right: 0 } b { top: 0 }",
    // "!important", letter case, blanks.
    "a { color: red !important; top: 1px ! IMPORTANT; left: 0 !importan; right: 0 ! /**/ important "
    "}",
    "A.B:HOVER { COLOR: RED; Background-Image: URL(A.gif) }",
    "a{color:red}b>i,u+s{top:1px}a:link,a:visited{left:0}",
    "a\t{\r\n color\f:\tred;\r\n}\r\n",
    "a[b='}'] , a[c=\"{\"] { color: red }",
    // Addresses.
    "a { background-image: url( a.gif ) } b { background-image: url( \"a b.gif\" ) }",
    "a { background-image: url(a b.gif); color: red } p { top: 0 }",
    "a { background-image: url(a'b.gif); color: red } p { top: 0 }",
    "a { background-image: url(); list-style-image: url('') }",
    "a { background-image: url (a.gif); color: red }",
    "a { background-image: url(a.gif)url(b.gif); color: red; list-style: url(c.gif) square }",
    // Marks of HTML comments.
    "<!-- a { color: red } --> p { top: 0 }",
    "a { <!-- color: red; --> top: 1px; left: 0 }",
    // Numbers and other characters.
    "a { top: +1.5e3px; left: -.5em; right: 1e; margin: 1px -2px } #1 { top: 0 } .-1 { top: 0 }",
    "\xC3\xA9 { color: red } .\xE2\x82\xAC { top: 0; --\xC3\xBC: 1 }",
    "--a { color: red } -b { top: 0 } ---c- { left: 0 }",
    "a { *color: red; _top: 1px; left: 2px; filter: progid:X.Y(a=1) }",
};

// A sheet without a fault, token by token; "|" stands between the tokens.
const char kSound[] =
    "a|.b| > |p|,|td|[x|=|'}'|]|{|color|:|red|;|background-image|:| url(|a.gif|)|;|--v|:|f(|1px|)|"
    " !important|;|}|@media |screen|{|i|{|top|:|0|}|}|#c|:hover|{|content|:|\"s\"|;|left|:|-2px|}|"
    "u|{|list-style-image|:|url('b.gif')|;|right|:|calc(|1px|)|}|s|{|top|:|1px|}";
const char* const kStray[] = {"{",      "}",      ";",        ":",     "(",   ")",    "[",
                              "]",      "'",      "\"",       "\n",    " ",   "\\",   "/*",
                              "*/",     "/**/",   "<!--",     "-->",   "@x ", "url(", "!",
                              "\\26 ",  "f(",     "@media ",  "--w:1", "\f",  "-",    "#",
                              "color:", "URL(x)", "url( 'y'", "red;",  "*",   "}p{",  "\xC3\xA9"};

QByteArray ByChance(std::mt19937& random) {
    QList<QByteArray> tokens = QByteArray(kSound).split('|');
    const auto below = [&](qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(limit));
    };
    for (qsizetype changes = 1 + below(4); changes > 0; --changes) {
        const qsizetype place = below(tokens.size());
        switch (below(3)) {
            case 0:
                tokens.removeAt(place);
                break;
            case 1:
                tokens.insert(place, tokens[below(tokens.size())]);
                break;
            default:
                tokens.insert(place, kStray[below(std::size(kStray))]);
        }
    }
    return tokens.join();
}

}  // namespace

QList<QByteArray> MadeSheets(int byChance) {
    QList<QByteArray> sheets(std::begin(kOddSheets), std::end(kOddSheets));
    std::mt19937 random(1);
    for (int i = 0; i < byChance; ++i)
        sheets.append(ByChance(random));
    return sheets;
}
