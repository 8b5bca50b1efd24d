#include "program/recolor_command.h"

#include <set>

#include "linux/disk_path.h"
#include "program/batch.h"
#include "program/dry_run.h"
#include "program/export_folder.h"
#include "program/theme_report.h"
#include "program/window_command.h"
#include "text/ignoring_case.h"

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

BatchWindow& TakeSteps(Batch& batch, const RecolorRequest& request) {
    BatchWindow& window = batch.OpenTheme(request.theme);
    for (const Step& step : request.steps)
        window.Take(step);
    return window;
}

void DrawIfAsked(BatchWindow& window, const RecolorRequest& request) {
    if (!request.picture.empty()) DrawWindow(window.Window(), request.picture);
}

std::string Printed(const nlohmann::ordered_json& report, const RecolorRequest& request) {
    return request.json ? JsonText(report) + "\n" : std::string();
}

std::string Export(const RecolorRequest& request, std::string& warnings) {
    const ExportFolder exportFolder(request.outcome.exportFolder);
    Batch batch(request.web, request.theme);
    warnings = batch.Warnings();
    BatchWindow& window = TakeSteps(batch, request);
    warnings += Warnings(window.Window());
    const std::string source = ToDiskPath(window.Window().WorkFolder()).value();
    if (request.dryRun) return exportFolder.WouldFill(source);
    DrawIfAsked(window, request);
    exportFolder.Fill(source);
    return Printed(RecolorReport(window.Window()), request);
}

std::string Save(const RecolorRequest& request, const UserFolders& folders, std::string& warnings) {
    Batch batch(request.web, request.theme, folders);
    warnings = batch.Warnings();
    // The theme may hold these steps already; running them again would apply them twice.
    if (EqualIgnoringCase(batch.CompletedTheme(), request.theme))
        throw Refusal("An interrupted save was completed; nothing else was done.");
    BatchWindow& window = TakeSteps(batch, request);
    warnings += Warnings(window.Window());
    DrawIfAsked(window, request);
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
std::string Rehearse(const RecolorRequest& request, const UserFolders& folders,
                     std::string& warnings) {
    const DryRun dryRun(request.web, folders);
    RecolorRequest there = request;
    there.web = dryRun.Web();
    there.picture.clear();
    std::string refusal;
    try {
        Save(there, dryRun.Folders(), warnings);
    } catch (const std::exception& error) {
        refusal = dryRun.WithRealPlaces(error.what());
    }
    warnings = dryRun.WithRealPlaces(warnings);
    if (!refusal.empty()) throw Refusal(refusal);
    return dryRun.WouldWrite();
}

}  // namespace

std::string Recolor(const RecolorRequest& request, std::string& warnings) {
    if (request.outcome.kind == Outcome::Kind::kExport) return Export(request, warnings);
    const UserFolders folders = FindUserFolders(EnvironmentVariable);
    return request.dryRun ? Rehearse(request, folders, warnings) : Save(request, folders, warnings);
}

}  // namespace morpho
