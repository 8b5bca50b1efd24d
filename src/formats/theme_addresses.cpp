#include "formats/theme_addresses.h"

#include <algorithm>

#include "formats/html_tags.h"
#include "formats/web_text.h"
#include "text/ignoring_case.h"
#include "text/windows_1252.h"

namespace morpho {

namespace {

constexpr std::string_view kThemes = "_themes";
constexpr std::string_view kEndsAddress = " \t\r\n\f\"'`<>()=,;|";
constexpr std::string_view kSeparators = "/\\";
// A name of 255 bytes, each of them written as "&#x00FF;".
constexpr std::size_t kMaxName = 255 * 8;

std::string DecodedName(std::string_view name) {
    return TextOfUnknownCoding(DecodedPercents(DecodedReferences(name)));
}

// Whether a path of this beginning stays in the page's own folder, or goes upwards from there.
bool GoesUpwards(std::string_view start) {
    std::string path(start);
    std::replace(path.begin(), path.end(), '\\', '/');
    std::string_view rest = path;
    if (rest.starts_with('/')) rest.remove_prefix(1);
    while (!rest.empty()) {
        const std::string_view step = rest.substr(0, std::min(rest.find('/'), rest.size() - 1) + 1);
        if (step != "../" && step != "./") return false;
        rest.remove_prefix(step.size());
    }
    return true;
}

class AddressFinder {
  public:
    explicit AddressFinder(std::string_view page) : page_(page), lower_(AsciiLowered(page)) {}

    std::vector<ThemeAddress> Find() {
        HtmlTagReader tags(page_);
        std::size_t done = 0;
        while (const auto tag = tags.Next()) {
            SearchComments(done, tag->begin);
            Search(tag->begin, tag->end);
            done = tag->end + tag->text.size();
            if (tag->name == "style" || tag->name == "script" || tag->name == "noframes")
                Search(tag->end, done);
        }
        SearchComments(done, page_.size());
        return std::move(found_);
    }

  private:
    void SearchComments(std::size_t begin, std::size_t end) {
        while ((begin = Next("<!--", begin, end)) != end) {
            const std::size_t close = Next("-->", begin, end);
            Search(begin, close);
            begin = close;
        }
    }

    std::size_t Next(std::string_view wanted, std::size_t begin, std::size_t end) const {
        const std::size_t found = page_.substr(0, end).find(wanted, begin);
        return found == page_.npos ? end : found;
    }

    void Search(std::size_t begin, std::size_t end) {
        const std::string_view region = std::string_view(lower_).substr(0, end);
        for (std::size_t hit = region.find(kThemes, begin); hit != region.npos;
             hit = region.find(kThemes, hit + kThemes.size()))
            Take(begin, hit, end);
        ReadFileOfLast(end);
    }

    void Take(std::size_t begin, std::size_t hit, std::size_t end) {
        const std::size_t start = StartOfAddress(begin, hit);
        const char before = start > begin ? page_[start - 1] : ' ';
        if (kEndsAddress.find(before) == kEndsAddress.npos) return;
        ThemeAddress address;
        address.nameBegin = hit + kThemes.size() + 1;
        if (address.nameBegin > end || !IsSeparator(address.nameBegin - 1)) return;
        if (!GoesUpwards(page_.substr(start, hit - start))) return;
        const std::string_view rest = page_.substr(address.nameBegin, end - address.nameBegin);
        address.nameLength = rest.substr(0, kMaxName).find_first_of(kSeparators);
        if (address.nameLength == rest.npos) return;
        address.theme = DecodedName(rest.substr(0, address.nameLength));
        if (start > begin) ReadFileOfLast(start - 1);
        fileBegin_ = address.nameBegin + address.nameLength + 1;
        quote_ = before;
        found_.push_back(std::move(address));
    }

    // Only steps upwards may stand before "_themes", so that the way back is short and no part of
    // a page is searched for more than one hit.
    std::size_t StartOfAddress(std::size_t begin, std::size_t hit) const {
        while (hit > begin && (page_[hit - 1] == '.' || IsSeparator(hit - 1)))
            --hit;
        return hit;
    }

    bool IsSeparator(std::size_t position) const {
        return kSeparators.find(page_[position]) != kSeparators.npos;
    }

    // The file's name of the address found last, which may hold blanks where the address stands in
    // quotes. It ends before the next address, so that no part of a page is in two names: a page
    // of nothing but addresses would otherwise take a hundred times its size in memory.
    void ReadFileOfLast(std::size_t end) {
        if (fileBegin_ == 0) return;
        const bool quoted = quote_ == '"' || quote_ == '\'';
        std::string ends = "?#<>)\r\n";
        ends += quoted ? std::string(1, quote_) : std::string(" \t\"'");
        const std::string_view rest = page_.substr(fileBegin_, end - std::min(end, fileBegin_));
        const std::string_view file = rest.substr(0, rest.find_first_of(ends));
        found_.back().fileBegin = fileBegin_;
        found_.back().fileLength = file.size();
        found_.back().file = DecodedName(file);
        fileBegin_ = 0;
    }

    std::string_view page_;
    std::string lower_;
    std::vector<ThemeAddress> found_;
    std::size_t fileBegin_ = 0;  // where the file of the last one begins; 0 when it was read
    char quote_ = ' ';           // what stands before the last one
};

// Whether the folder part of an address, with its "/" at the end, is another theme's folder as
// seen from a theme's: its last two names are ".." or "_themes" and one more.
bool IsForeignFolder(std::string_view folder) {
    std::string path = AsciiLowered(folder);
    std::replace(path.begin(), path.end(), '\\', '/');
    if (path.empty()) return false;
    path.pop_back();
    const std::size_t name = path.rfind('/');
    if (name == path.npos || path.find("//") != path.npos) return false;
    const std::string parent = path.substr(0, name);
    if (path.substr(name) == "/..") return false;
    return parent == ".." || parent == kThemes || parent.ends_with("/_themes");
}

}  // namespace

std::vector<ThemeAddress> ThemeAddresses(std::string_view page) {
    return AddressFinder(page).Find();
}

std::string WithOwnPictures(std::string_view css,
                            const std::function<bool(const std::string&)>& isOwn) {
    constexpr std::string_view kUrl = "url(";
    const std::string lower = AsciiLowered(css);
    std::string result;
    std::size_t done = 0;
    for (std::size_t hit = lower.find(kUrl); hit != lower.npos;) {
        hit += kUrl.size();
        const std::size_t begin = std::min(css.find_first_not_of(" \t\r\n\"'", hit), css.size());
        const std::string_view rest = css.substr(begin);
        const std::string_view path = rest.substr(0, rest.find_first_of("\"')\r\n"));
        // What stands inside an address is no other one, even if it looks like it.
        hit = lower.find(kUrl, begin + path.size());
        const std::size_t folder = path.find_last_of(kSeparators);
        if (folder == path.npos || path.find('(') != path.npos ||
            !IsForeignFolder(path.substr(0, folder + 1)))
            continue;
        const std::string_view file = path.substr(folder + 1);
        if (!isOwn(DecodedName(file.substr(0, file.find_last_not_of(" \t") + 1)))) continue;
        result.append(css.substr(done, begin - done));
        done = begin + folder + 1;
    }
    return result.append(css.substr(done));
}

}  // namespace morpho
