#include "addin/add_in_tm.h"

#include "theme_editor/frm_theme_morpho.h"

namespace morpho {

namespace {

constexpr AddInNames kNames{kThemeProduct, "TM", "Error connecting TM: ", "NoTMAddinError"};

}  // namespace

AddInTM::AddInTM(const Program& program)
    : AddIn(program, kNames, [program] { return std::make_unique<frmThemeMorpho>(program); }) {}

void AddInTM::CreateItems(CommandBars& bars) {
    CreateMenuItem(bars, p_mctlBtnEvents, "ThemeMorpho", "Theme Morpho...");
}

std::string_view AddInTM::MissingItems() const {
    if (p_mctlBtnEvents.Exists()) return {};
    return "Failed to create Theme morpho menu item under Format menu. Theme morpho will not be "
           "accessible.";
}

}  // namespace morpho
