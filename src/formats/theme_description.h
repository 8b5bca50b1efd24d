#pragma once

#include <string>
#include <string_view>

#include "formats/profile_text.h"

namespace morpho {

class CodePage;

// A theme's description, the profile file "<name>.inf" in its folder: section "info" with title,
// readonly and codepage, section "Titles" with a title for each language. Code page 65001 means
// UTF-8, any other one the system's own.
class ThemeDescription {
  public:
    ThemeDescription(const CodePage& codePage, std::string_view bytes);

    // UTF-8; empty when there is none.
    std::string Title() const;
    // Whether the theme must not be overwritten.
    bool IsReadOnly() const;

    // Makes this the title for every language. The bytes of a title that stays the same stay too;
    // another one is written in the code page that the file declares. A file whose code page lacks
    // a character of the title declares UTF-8 from then on.
    void SetTitle(std::string_view title);
    void SetWritable();

    std::string Bytes() const { return text_.Bytes(); }
    // The whole file in UTF-8, as "<name>.utf8" holds it beside the description.
    std::string Utf8Bytes() const;

  private:
    std::string TextOf(std::string_view bytes) const;
    std::string TitleBytes(std::string_view title);

    const CodePage& codePage_;
    ProfileText text_;
};

}  // namespace morpho
