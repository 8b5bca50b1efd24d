#include "program/apply_command.h"

#include "program/batch.h"

namespace morpho {

void Apply(const ApplyRequest& request, std::string& warnings) {
    Batch batch(request.web, request.theme, FindUserFolders(EnvironmentVariable));
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
