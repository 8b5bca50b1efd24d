#include "desktop/commands/recolor_command.h"

#include <set>

#include "desktop/commands/batch.h"
#include "desktop/commands/export_folder.h"
#include "desktop/commands/theme_report.h"
#include "desktop/commands/window_command.h"
#include "desktop/disk/disk_path.h"

namespace morpho {

namespace {

std::string Warnings(const frmThemeMorpho& window) {
    // Elements that share a picture share its failure.
    std::set<std::string> told;
    std::string warnings;
    for (const auto& [row, reason] : window.Renderer().Failures()) {
        // "url()" names no file, yet makes an element.
        const std::string& file = window.Elements().File(row);
        const std::string sentence = file.empty()
                                         ? window.Elements().Key(row) + " names no picture."
                                         : file + " is left as it was: " + reason;
        if (told.insert(sentence).second) warnings += sentence + "\n";
    }
    return warnings;
}

}  // namespace

std::string Recolor(const RecolorRequest& request, std::string& warnings) {
    const ExportFolder exportFolder(request.exportFolder);
    Batch batch(request.web, request.theme);
    BatchWindow& window = batch.OpenTheme(request.theme);
    for (const Step& step : request.steps)
        window.Take(step);
    warnings = batch.Warnings() + Warnings(window.Window());
    if (!request.picture.empty()) DrawWindow(window.Window(), request.picture);
    exportFolder.Fill(ToDiskPath(window.Window().WorkFolder()).value());
    return request.json ? JsonText(RecolorReport(window.Window())) + "\n" : std::string();
}

}  // namespace morpho
