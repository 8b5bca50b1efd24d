#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace morpho {

// What a page's "Microsoft Theme" meta tag says:
//     <meta name="Microsoft Theme" content="NAME DIGITS, default">
// DIGITS are the theme's flags; "default" stands where the page takes the theme of the whole web;
// the name "none" means no theme.
struct PageTheme {
    std::string name;  // folder name, UTF-8; empty for none
    bool ofWeb = false;
};

// Which pages get another theme, by what their tag says.
struct PageChoice {
    bool ofWeb = true;          // those that take the theme of the whole web
    std::string ownTheme = {};  // those that name this theme themselves; empty: none

    bool Has(const PageTheme& theme) const;
};

// Nothing for a page without the tag. `page` may be its first part only.
std::optional<PageTheme> ThemeOfPage(std::string_view page);

// The same with the place of NAME in the page.
struct ThemeMark {
    PageTheme theme;
    std::size_t nameBegin = 0;
    std::size_t nameLength = 0;
    std::size_t digitsEnd = 0;   // behind NAME DIGITS
    std::size_t contentEnd = 0;  // behind the whole of it
    std::size_t tagBegin = 0;
    std::size_t tagEnd = 0;  // behind the tag's ">"
};
std::optional<ThemeMark> FindThemeMark(std::string_view page);

}  // namespace morpho
