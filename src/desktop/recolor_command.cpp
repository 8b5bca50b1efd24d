#include "desktop/recolor_command.h"

#include <set>

#include "desktop/batch.h"
#include "desktop/dry_run.h"
#include "desktop/export_folder.h"
#include "desktop/theme_report.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

std::string Warnings(frmThemeMorpho& window) {
    // Elements that share a picture share its failure.
    std::set<std::string> told;
    std::string warnings;
    for (const auto& [row, reason] : window.Renderer().Failures()) {
        // "url()" names no file, yet makes an element.
        const std::string& file = window.Elements().File(row);
        const std::string sentence = file.empty()
                                         ? window.Elements().Key(row) + " names no picture."
                                         : file + " is left as it was: " + reason;
        if (told.insert(sentence).second) warnings.append(sentence).append("\n");
    }
    return warnings;
}

BatchWindow& TakeSteps(Batch& batch, const RecolorRequest& request) {
    BatchWindow& window = batch.OpenTheme(request.theme);
    for (const Step& step : request.steps)
        window.Take(step);
    // A picture that could not be recoloured as a whole is not saved with half of the steps.
    window.Window().Renderer().RestoreFailed();
    return window;
}

void DrawIfAsked(BatchWindow& window, const RecolorRequest& request, Screen& screen) {
    if (!request.picture.empty()) screen.Draw(window.Window(), request.picture);
}

std::string Printed(const nlohmann::ordered_json& report, const RecolorRequest& request) {
    return request.json ? JsonText(report) + "\n" : std::string();
}

std::string Export(const RecolorRequest& request, DesktopSystem& system, Screen& screen,
                   std::string& warnings) {
    const ExportFolder exportFolder(system, request.outcome.exportFolder);
    Batch batch(system, request.web, request.theme);
    warnings = batch.Warnings();
    BatchWindow& window = TakeSteps(batch, request);
    warnings += Warnings(window.Window());
    const auto source = system.PathOnDisk(window.Window().WorkFolder()).value();
    if (request.dryRun) return exportFolder.WouldFill(source);
    DrawIfAsked(window, request, screen);
    exportFolder.Fill(source, system.GetDisk().Program());
    return Printed(RecolorReport(window.Window()), request);
}

std::string Save(const RecolorRequest& request, DesktopSystem& system, Screen& screen,
                 const ProgramFolders& folders, std::string& warnings) {
    Batch batch(system, request.web, request.theme, folders);
    warnings = batch.Warnings();
    // The theme may hold these steps already; running them again would apply them twice.
    if (EqualIgnoringCase(batch.CompletedTheme(), request.theme))
        throw Refusal("An interrupted save was completed; nothing else was done.");
    BatchWindow& window = TakeSteps(batch, request);
    warnings += Warnings(window.Window());
    DrawIfAsked(window, request, screen);
    nlohmann::ordered_json report = RecolorReport(window.Window());
    batch.LetPagesFollow(request.outcome.applyToPages);
    const bool asNew = request.outcome.kind == Outcome::Kind::kSaveAs;
    const SavedTheme saved = asNew ? window.SaveAs(request.outcome) : window.Save();
    const bool applied = EqualIgnoringCase(batch.ThemeOfWeb(), saved.name);
    report["saved"] = {{"name", saved.name},
                       {"title", saved.title},
                       {"web", asNew ? request.outcome.applyToWeb : applied},
                       {"applied", applied}};
    if (applied) report["saved"]["pagesWithOwnTheme"] = batch.KeptThemes();
    const std::string& notice = window.Window().LastSave().notice;
    if (!notice.empty()) warnings += notice + "\n";
    for (const std::string& sentence : batch.Reports())
        warnings += sentence + "\n";
    return Printed(report, request);
}

// The save, on copies.
std::string Rehearse(const RecolorRequest& request, DesktopSystem& system, Screen& screen,
                     std::string& warnings) {
    const DryRun dryRun(system, request.web, system.Folders());
    RecolorRequest there = request;
    there.web = dryRun.Web();
    there.picture.clear();
    std::string refusal;
    try {
        Save(there, system, screen, dryRun.Folders(), warnings);
    } catch (const std::exception& error) {
        refusal = dryRun.WithRealPlaces(error.what());
    }
    warnings = dryRun.WithRealPlaces(warnings);
    if (!refusal.empty()) throw Refusal(refusal);
    return dryRun.WouldWrite();
}

}  // namespace

std::string Recolor(const RecolorRequest& request, DesktopSystem& system, Screen& screen,
                    std::string& warnings) {
    if (request.outcome.kind == Outcome::Kind::kExport)
        return Export(request, system, screen, warnings);
    if (request.dryRun) return Rehearse(request, system, screen, warnings);
    return Save(request, system, screen, system.Folders(), warnings);
}

}  // namespace morpho
