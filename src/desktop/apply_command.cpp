#include "desktop/apply_command.h"

#include "desktop/batch.h"

namespace morpho {

void Apply(const ApplyRequest& request, DesktopSystem& system, std::string& warnings) {
    Batch batch(system, request.web, request.theme, system.Folders());
    warnings = batch.Warnings();
    if (!request.overwrite && batch.ApplyingReplacesTheme(request.theme))
        throw Refusal("The web has another theme \"" + request.theme +
                      "\" than you have; --overwrite replaces it by yours.");
    if (request.inPlaceOf.empty()) {
        batch.ApplyTheme(request.theme);
    } else {
        batch.ApplyInPlaceOf(request.theme, request.inPlaceOf);
    }
    for (const std::string& sentence : batch.Reports())
        warnings += sentence + "\n";
    if (!batch.IsThemeShown()) throw Refusal("The theme could not be applied.");
}

}  // namespace morpho
