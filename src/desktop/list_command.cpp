#include "desktop/list_command.h"

#include <algorithm>

#include "desktop/batch.h"
#include "desktop/theme_report.h"
#include "text/ignoring_case.h"
#include "text/printable.h"

namespace morpho {

namespace {

// Characters of a UTF-8 text.
std::size_t Length(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](unsigned char c) { return (c & 0xC0) != 0x80; }));
}

std::string Padded(const std::string& text, std::size_t width) {
    const std::string printed = Printable(text, LineEnds::kReplaced);
    return printed + std::string(width > Length(printed) ? width - Length(printed) : 0, ' ');
}

std::string ThemesText(const std::vector<Theme>& themes) {
    std::size_t width = 0;
    for (const Theme& theme : themes)
        width = std::max(width, Length(theme.name));
    std::string text;
    for (const Theme& theme : themes)
        text +=
            Padded(theme.name, width) + "  " + Printable(theme.label, LineEnds::kReplaced) + "\n";
    return text;
}

std::string ElementsText(const ElementList& elements) {
    std::size_t keyWidth = 0;
    std::size_t fileWidth = 0;
    for (int row = 0; row < elements.Count(); ++row) {
        keyWidth = std::max(keyWidth, Length(elements.Key(row)));
        fileWidth = std::max(fileWidth, Length(elements.File(row)));
    }
    std::string text;
    for (int row = 0; row < elements.Count(); ++row) {
        text += Padded(elements.Key(row), keyWidth) + "  " + Padded(elements.File(row), fileWidth) +
                "  " + std::to_string(elements.Group(row)) + "\n";
    }
    return text;
}

}  // namespace

std::string List(const ListRequest& request, DesktopSystem& system, std::string& warnings) {
    Batch batch(system, request.web, request.theme);
    warnings = batch.Warnings();
    std::vector<Theme> themes = batch.Themes();
    if (themes.empty()) warnings += "This web has no themes.\n";
    if (!request.theme.empty()) {
        std::erase_if(themes, [&](const Theme& theme) {
            return !EqualIgnoringCase(theme.name, request.theme);
        });
        if (themes.empty()) batch.OpenTheme(request.theme);
    }
    if (request.theme.empty() && !request.json) return ThemesText(themes);
    nlohmann::ordered_json report = nlohmann::ordered_json::array();
    std::string text;
    for (const Theme& theme : themes) {
        nlohmann::ordered_json elements = nlohmann::ordered_json::array();
        try {
            const frmThemeMorpho& window = batch.OpenTheme(theme.name).Window();
            text += ElementsText(window.Elements());
            elements = ElementsReport(window);
        } catch (const CommandError& error) {
            if (!request.theme.empty()) throw;
            // One theme among many: the others go on.
            warnings += std::string(error.what()) + "\n";
        }
        report.push_back(
            {{"name", theme.name}, {"label", theme.label}, {"elements", std::move(elements)}});
    }
    return request.json ? JsonText(report) + "\n" : text;
}

}  // namespace morpho
