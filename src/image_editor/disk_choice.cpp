#include "image_editor/disk_choice.h"

#include "forms/toolkit.h"

namespace morpho {

std::string WithExtension(std::string name, std::string_view extension) {
    if (extension.empty() || name.find('.') != std::string::npos) return name;
    return name.append(".").append(extension);
}

bool MayReplace(Form& owner, std::string_view name, std::string_view title) {
    const std::string question =
        std::string(name) + " already exists.\r\nDo you want to replace it ?";
    return owner.MsgBox(question, kYesNo | kQuestionIcon | kSecondButtonDefault, title) ==
           Answer::kYes;
}

std::optional<std::string> ChooseDiskFile(Form& owner, Toolkit& toolkit, FileDialog request) {
    const bool opens = request.mode == FileDialog::Mode::kOpen;
    request.flags = kHideReadOnly | (opens ? kFileMustExist : kOverwritePrompt);
    return toolkit.ShowFileDialog(&owner, request);
}

}  // namespace morpho
