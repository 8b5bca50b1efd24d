#include "desktop/batch.h"

#include <algorithm>
#include <optional>

#include "shared/mod_shared_code.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

std::optional<std::string> OnlyTheme(const std::string& name) {
    return name.empty() ? std::nullopt : std::optional(name);
}

}  // namespace

Batch::Batch(DesktopSystem& system, const std::filesystem::path& web, const std::string& onlyTheme)
    : system_(system),
      desktop_(DesktopUse::kBatch, system, system.Folders(), toolkit_, resources_, clipboard_) {
    desktop_.OpenForReading(system.AbsolutePath(web), OnlyTheme(onlyTheme));
    component_.application = desktop_.SharedFrontPage();
}

Batch::Batch(DesktopSystem& system, const std::filesystem::path& web, const std::string& onlyTheme,
             const ProgramFolders& folders)
    : system_(system),
      desktop_(DesktopUse::kBatch, system, folders, toolkit_, resources_, clipboard_) {
    desktop_.OpenForSaving(system.AbsolutePath(web), OnlyTheme(onlyTheme));
    component_.application = desktop_.SharedFrontPage();
}

std::string Batch::Warnings() {
    const WebSession& web = *desktop_.FrontPage().Session();
    std::string warnings;
    for (const auto& sentences : {web.Repairs(), web.Skipped()}) {
        for (const std::string& sentence : sentences)
            warnings += sentence + "\n";
    }
    return warnings;
}

BatchWindow& Batch::OpenTheme(const std::string& name) {
    const bool known = std::any_of(Themes().begin(), Themes().end(), [&](const Theme& theme) {
        return EqualIgnoringCase(theme.name, name);
    });
    if (!known) throw Refusal("This web has no theme named \"" + name + "\".");
    const std::string unpacked =
        system_.PathInside(desktop_.Cache()) + "\\FrontPageTempDir\\mstheme\\" + name;
    // The warnings tell why.
    if (!FolderExists(desktop_.Parts().files, unpacked))
        throw Refusal("The theme \"" + name + "\" cannot be read.");
    if (!window_) window_ = std::make_unique<BatchWindow>(program_, toolkit_);
    window_->OpenTheme(name);
    return *window_;
}

}  // namespace morpho
