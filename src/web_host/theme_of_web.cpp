#include "web_host/theme_of_web.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <map>

#include "formats/theme_mark.h"
#include "formats/web_text.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

// The head of every page that was ever made in the host fits in here.
constexpr std::size_t kHeadBytes = 64UL * 1024;

constexpr std::array<std::string_view, 4> kHomePages = {"index.htm", "index.html", "default.htm",
                                                        "default.html"};
constexpr std::array<std::string_view, 11> kPageExtensions = {
    ".htm", ".html", ".shtm", ".shtml", ".stm", ".asp", ".aspx", ".php", ".jsp", ".cfm", ".dwt"};

// As much of the page as its head can be; what cannot be read has no theme.
std::string HeadOf(const DiskFolder& web, const std::string& name) {
    std::string head(kHeadBytes, '\0');
    try {
        const Descriptor file = web.OpenFile(name);
        const ssize_t count = ::read(file.Number(), head.data(), head.size());
        head.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    } catch (const RunTimeError&) {
        head.clear();
    }
    return head;
}

// The theme of the web, as far as this page takes it.
std::optional<std::string> ThemeTaken(const DiskFolder& web, const std::string& name) {
    const auto theme = ThemeOfPage(PageText(HeadOf(web, name)).Text());
    if (!theme || !theme->ofWeb) return {};
    return theme->name;
}

bool IsPage(const DiskEntry& entry) {
    return entry.kind == DiskKind::kFile && IsPageName(entry.name);
}

}  // namespace

bool IsPageName(std::string_view name) {
    const std::string lower = Lowered(name);
    return std::any_of(kPageExtensions.begin(), kPageExtensions.end(),
                       [&](std::string_view extension) { return lower.ends_with(extension); });
}

std::string ThemeOfWeb(const DiskFolder& web) {
    std::vector<DiskEntry> pages = web.Entries();
    std::erase_if(pages, [](const DiskEntry& entry) { return !IsPage(entry); });
    for (const std::string_view home : kHomePages) {
        for (const DiskEntry& page : pages) {
            if (!EqualIgnoringCase(page.name, home)) continue;
            if (auto theme = ThemeTaken(web, page.name)) return *theme;
        }
    }
    std::map<std::string, int> counts;
    for (const DiskEntry& page : pages) {
        const auto theme = ThemeTaken(web, page.name);
        if (theme && !theme->empty()) ++counts[*theme];
    }
    const auto most =
        std::max_element(counts.begin(), counts.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == counts.end() ? "" : most->first;
}

}  // namespace morpho
