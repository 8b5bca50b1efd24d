#include "theme_editor/theme_preview.h"

#include <exception>

#include "editing/hourglass_pointer.h"
#include "formats/web_text.h"
#include "platform/code_page.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/resources.h"
#include "resources/resource_ids.h"
#include "shared/log.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

constexpr int kPreviewNavigation =
    kNavigateNoHistory | kNavigateNoReadFromCache | kNavigateNoWriteToCache;

// A character that the page's code page lacks, as HTML writes it.
std::string NumericReference(char32_t character) {
    return "&#" + std::to_string(static_cast<unsigned long>(character)) + ";";
}

// A relative path as an address for an attribute: no name can end the attribute or the path, or
// look like a placeholder. Letters beyond ASCII stay, for browsers read their escapes in different
// code pages.
std::string PathAsAddress(std::string_view path) {
    std::string address;
    for (const char c : path) {
        const bool stays = c == '\\' || c == '/' || static_cast<unsigned char>(c) >= 0x80;
        address += stays ? std::string(1, c) : EncodedPercents({&c, 1});
    }
    return address;
}

}  // namespace

void ThemePreview::SetTheme(const std::string& name, const std::string& page) {
    themeName_ = name;
    page_ = page;
}

void ThemePreview::GeneratePreview(bool navigate) {
    WriteLog(program_, "Generating theme preview...");
    const std::string text = FilledTemplate();
    WriteLog(program_, "  Saving preview HTML...");
    WritePreviewFile(page_, text);
    browser_.SetVisible(true);
    // A browser that never got to the page, because the first theme could not be loaded, has
    // nothing to read again.
    if (navigate || browser_.Address().empty()) {
        browser_.Navigate(page_, kPreviewNavigation);
    } else {
        browser_.RefreshPage();
    }
    WriteLog(program_, "Theme preview generated.");
}

void ThemePreview::ShowNothing() {
    browser_.SetVisible(false);
}

void ThemePreview::RefreshPictures() {
    browser_.Refresh2(kRefreshCompletely);
}

std::string ThemePreview::FilledTemplate() const {
    WriteLog(program_, "  Loading preview HTML...");
    std::string text = program_.platform.codePage.ToText(
        program_.platform.resources.Bytes(kTemplateResource, kPreviewTemplate));
    WriteLog(program_, "  Performing substitutions...");
    for (int row = 0; row < elements_.Count(); ++row) {
        text = ReplacedIgnoringAsciiCase(text, "#" + elements_.Key(row) + "#",
                                         PathAsAddress(themeName_ + "\\" + elements_.File(row)));
    }
    return text;
}

void ThemePreview::WritePreviewFile(const std::string& path, const std::string& text) {
    const HourglassPointer hourglass(form_);
    try {
        program_.platform.files.WriteFile(
            path, program_.platform.codePage.ToBytes(text + "\r\n", NumericReference));
    } catch (const std::exception&) {
        // The browser then shows the page as it was, or its own error.
        return;
    }
}

}  // namespace morpho
