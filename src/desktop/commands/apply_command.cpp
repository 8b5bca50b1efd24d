#include "desktop/commands/apply_command.h"

#include "desktop/commands/batch.h"

namespace morpho {

std::string Apply(const ApplyRequest& request) {
    Batch batch(request.web, request.theme, FindUserFolders(EnvironmentVariable));
    batch.ApplyTheme(request.theme);
    std::string warnings;
    for (const std::string& sentence : batch.Reports())
        warnings += sentence + "\n";
    return warnings;
}

}  // namespace morpho
