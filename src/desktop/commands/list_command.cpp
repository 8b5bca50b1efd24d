#include "desktop/commands/list_command.h"

#include <algorithm>

#include "desktop/commands/batch.h"
#include "desktop/commands/theme_report.h"
#include "platform/ignoring_case.h"

namespace morpho {

namespace {

std::string Padded(const std::string& text, std::size_t width) {
    return text + std::string(width > text.size() ? width - text.size() : 0, ' ');
}

std::string ThemesText(const std::vector<Theme>& themes) {
    std::size_t width = 0;
    for (const Theme& theme : themes)
        width = std::max(width, theme.name.size());
    std::string text;
    for (const Theme& theme : themes)
        text += Padded(theme.name, width) + "  " + theme.label + "\n";
    return text;
}

std::string ElementsText(const ElementList& elements) {
    std::size_t keyWidth = 0;
    std::size_t fileWidth = 0;
    for (int row = 0; row < elements.Count(); ++row) {
        keyWidth = std::max(keyWidth, elements.Key(row).size());
        fileWidth = std::max(fileWidth, elements.File(row).size());
    }
    std::string text;
    for (int row = 0; row < elements.Count(); ++row) {
        text += Padded(elements.Key(row), keyWidth) + "  " + Padded(elements.File(row), fileWidth) +
                "  " + std::to_string(elements.Group(row)) + "\n";
    }
    return text;
}

}  // namespace

std::string List(const ListRequest& request, std::string& warnings) {
    Batch batch(request.web, request.theme);
    warnings = batch.Warnings();
    std::vector<Theme> themes = batch.Themes();
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
