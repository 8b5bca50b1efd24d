#include "windows_system/windows_code_page.h"

#include "text/utf8.h"
#include "windows_system/wide.h"
#include "windows_system/win32.h"

namespace morpho {

namespace {

// The character's bytes; nothing where the code page lacks it. A look-alike does not count.
std::string BytesOf(std::string_view character) {
    const std::wstring wide = Wide(character);
    // With UTF-8 as code page the call takes neither the flag nor the last argument.
    const bool isUtf8 = ::GetACP() == CP_UTF8;
    char bytes[8];
    BOOL isMissing = FALSE;
    const int count = ::WideCharToMultiByte(
        CP_ACP, isUtf8 ? 0 : WC_NO_BEST_FIT_CHARS, wide.data(), static_cast<int>(wide.size()),
        bytes, static_cast<int>(std::size(bytes)), nullptr, isUtf8 ? nullptr : &isMissing);
    return isMissing ? std::string() : std::string(bytes, static_cast<std::size_t>(count));
}

}  // namespace

std::string WindowsCodePage::ToText(std::string_view bytes) const {
    const int length = static_cast<int>(bytes.size());
    std::wstring wide(static_cast<std::size_t>(
                          ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0)),
                      L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, wide.data(),
                          static_cast<int>(wide.size()));
    return Narrow(wide);
}

std::string WindowsCodePage::ToBytes(std::string_view text,
                                     const std::function<std::string(char32_t)>& missing) const {
    std::string bytes;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        const char32_t character = NextCharacter(text, position).value_or(kReplacementCharacter);
        const std::string found = BytesOf(text.substr(start, position - start));
        bytes += !found.empty() ? found : missing ? missing(character) : "?";
    }
    return bytes;
}

}  // namespace morpho
