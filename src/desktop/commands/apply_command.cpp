#include "desktop/commands/apply_command.h"

#include "desktop/commands/batch.h"

namespace morpho {

std::string Apply(const ApplyRequest& request) {
    Batch batch(request.web, request.theme, FindUserFolders(EnvironmentVariable));
    if (!request.overwrite && batch.ApplyingReplacesTheme(request.theme))
        throw CommandError(CommandError::Status::kRefused,
                           "The web has another theme \"" + request.theme +
                               "\" than you have; --overwrite replaces it by yours.");
    batch.ApplyTheme(request.theme);
    std::string warnings = batch.Warnings();
    for (const std::string& sentence : batch.Reports())
        warnings += sentence + "\n";
    if (batch.IsThemeShown()) return warnings;
    warnings.pop_back();  // what was reported says why
    throw CommandError(CommandError::Status::kRefused, warnings);
}

}  // namespace morpho
