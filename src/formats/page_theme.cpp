#include "formats/page_theme.h"

#include "formats/web_text.h"
#include "platform/run_time_error.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

// A text in which places, given in their order, are replaced.
class Replacing {
  public:
    explicit Replacing(std::string_view text) : text_(text) {}

    void Replace(std::size_t begin, std::size_t length, std::string_view with) {
        result_.append(text_.substr(done_, begin - done_)).append(with);
        done_ = begin + length;
    }
    std::string Result() { return result_.append(text_.substr(done_)); }

  private:
    std::string_view text_;
    std::string result_;
    std::size_t done_ = 0;
};

std::string WithTheme(const std::string& page, const ThemeMark& mark, std::string_view theme,
                      const FileInNewTheme& newFile) {
    Replacing result(page);
    const std::string inAddress = EncodedPercents(theme);
    bool marked = false;
    const auto replaceMark = [&] {
        if (!marked) result.Replace(mark.nameBegin, mark.nameLength, EncodedReferences(theme));
        marked = true;
    };
    for (const ThemeAddress& address : ThemeAddresses(page)) {
        if (!EqualIgnoringCase(address.theme, mark.theme.name)) continue;
        const auto file = newFile(address);
        if (!file) continue;
        if (address.nameBegin > mark.nameBegin) replaceMark();
        result.Replace(address.nameBegin, address.nameLength, inAddress);
        if (*file != address.file)
            result.Replace(address.fileBegin, address.fileLength, EncodedPercents(*file));
    }
    replaceMark();
    return result.Result();
}

}  // namespace

std::optional<std::string> PageWithTheme(std::string_view page, std::string_view theme,
                                         const PageChoice& choice, const FileInNewTheme& newFile) {
    const PageText text(page);
    const auto mark = FindThemeMark(text.Text());
    if (!mark || !choice.Has(mark->theme)) return {};
    if (EqualIgnoringCase(mark->theme.name, theme)) return {};
    auto bytes = text.BytesOf(WithTheme(text.Text(), *mark, theme, newFile));
    if (!bytes) throw RunTimeError(ErrorNumber::kInvalidFileFormat, "The page is broken UTF-16.");
    return bytes;
}

}  // namespace morpho
