#include "windows/edited_web.h"

#include "desktop/batch.h"
#include "windows_program/windows_desktop.h"

namespace morpho::test {

std::vector<std::string> Differences(const Tree& one, const Tree& other) {
    Tree all = one;
    all.insert(other.begin(), other.end());
    std::vector<std::string> names;
    for (const auto& [name, bytes] : all) {
        const auto here = one.find(name);
        const auto there = other.find(name);
        if (here == one.end() || there == other.end() || here->second != there->second)
            names.push_back(name);
    }
    return names;
}

void SaveAsDusk(BatchWindow& window, Recolours recolours) {
    window.OpenTheme("orrery");
    if (recolours == Recolours::kAll) {
        window.Take({Step::Kind::kSelect, {"all"}});
        window.Take({Step::Kind::kHue, {}, kHue});
        window.Take({Step::Kind::kBrightness, {}, kBrightness});
        window.Take({Step::Kind::kApply});
    }
    Outcome outcome;
    outcome.name = "dusk";
    outcome.title = "Dusk";
    outcome.applyToWeb = true;
    window.SaveAs(outcome);
}

Tree EditedByDesktopProgram() {
    const TemporaryFolder folder;
    std::filesystem::copy(std::filesystem::path(MORPHO_SOURCE_DIR) / "samples/larkfell",
                          folder.At("web"), std::filesystem::copy_options::recursive);
    WindowsDesktop system;
    {
        Batch batch(
            system, folder.At("web"), {},
            {folder.At("Desktop"), folder.At("AppData"), folder.At("data"), folder.At("cache")});
        SaveAsDusk(batch.OpenTheme("orrery"), Recolours::kAll);
    }
    return EditedTree(folder.Below("web"), folder.Below("AppData/Microsoft/Themes"));
}

}  // namespace morpho::test
