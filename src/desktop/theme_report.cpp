#include "desktop/theme_report.h"

namespace morpho {

nlohmann::ordered_json ElementsReport(const frmThemeMorpho& window) {
    nlohmann::ordered_json report = nlohmann::ordered_json::array();
    const ElementList& elements = window.Elements();
    for (int row = 0; row < elements.Count(); ++row) {
        report.push_back({{"key", elements.Key(row)},
                          {"file", elements.File(row)},
                          {"group", elements.Group(row)}});
    }
    return report;
}

nlohmann::ordered_json RecolorReport(const frmThemeMorpho& window) {
    nlohmann::ordered_json elements = ElementsReport(window);
    for (int row = 0; row < window.Elements().Count(); ++row) {
        auto& element = elements[static_cast<std::size_t>(row)];
        element["selected"] = window.Elements().IsSelected(row);
        element["recoloured"] = window.IsRecoloured(row);
    }
    return {{"theme", window.cmbThemeName.Text()},
            {"elements", std::move(elements)},
            {"undo", window.History().UndoDepth()},
            {"redo", window.History().RedoDepth()}};
}

std::string JsonText(const nlohmann::ordered_json& report) {
    return report.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

}  // namespace morpho
