#include "theme_editor/frm_prompt_duplicate.h"

#include "platform/platform.h"
#include "platform/resources.h"
#include "resources/resource_ids.h"

namespace morpho {

frmPromptDuplicate::frmPromptDuplicate(const Program& program)
    : LoggedForm(program, {"frmPromptDuplicate", "Theme Morpho", {6180, 1800}}) {
    const Resources& resources = program.platform.resources;
    imgStop.SetPicture(resources.Bytes(kIconResource, kStopIconId));
    imgQuestion.SetPicture(resources.Bytes(kIconResource, kQuestionIconId));
    imgInformation.SetPicture(resources.Bytes(kIconResource, kInformationIconId));
}

bool frmPromptDuplicate::ShowDuplicateNoticeDialog(std::string_view message, std::string_view title,
                                                   int iconKind) {
    Load();
    SetCaption(title);
    lblMessage.SetCaption(message);
    imgStop.SetVisible(iconKind == kCriticalIcon);
    imgQuestion.SetVisible(iconKind == kQuestionIcon);
    imgInformation.SetVisible(iconKind == kInformationIcon);
    ShowModal();
    const bool mayShowAgain = !chkDontShowAgain.Value();
    Unload();
    return mayShowAgain;
}

}  // namespace morpho
