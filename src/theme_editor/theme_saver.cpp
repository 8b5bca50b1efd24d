#include "theme_editor/theme_saver.h"

#include <utility>

#include "shared/log.h"
#include "theme_editor/frm_save_as.h"

namespace morpho {

SaveOutcome ThemeSaver::SaveTheme(const LoadedTheme& theme, const SaveTarget& target) {
    const BusySwitch::Guard busy(busySwitch_);
    ThemeSave save(program_, form_, lblStatus_, theme, target, [&] {
        saveAsPrompt_ = "This theme is read only. Please enter new theme details to save as:";
        return SaveThemeAs(theme, target.applyFlag);
    });
    return save.Run();
}

SaveOutcome ThemeSaver::SaveThemeAs(const LoadedTheme& theme, bool applyFlag) {
    SaveTarget target{theme.name, theme.label, applyFlag, true};
    const std::string prompt = std::exchange(saveAsPrompt_, "\r\nEnter new theme details:");
    frmSaveAs dialog(program_);
    if (dialog.RunModal(prompt, target.name, target.title, target.applyFlag))
        return SaveTheme(theme, target);
    WriteLog(program_, "Save as operation cancelled");
    return {};
}

}  // namespace morpho
