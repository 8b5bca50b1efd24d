#include "windows_server/message_toolkit.h"

#include "forms/form.h"
#include "platform/run_time_error.h"
#include "windows_system/wide.h"
#include "windows_system/win32.h"

namespace morpho {

void MessageToolkit::RunModal(Form&) {
    throw RunTimeError(ErrorNumber::kInternal, "Windows cannot be opened yet.");
}

// The flags and the answers are those of Windows.
Answer MessageToolkit::ShowMessage(Form*, std::string_view text, int flags,
                                   std::string_view title) {
    return static_cast<Answer>(::MessageBoxW(::GetActiveWindow(), Wide(text).c_str(),
                                             Wide(title).c_str(), static_cast<UINT>(flags)));
}

std::optional<std::string> MessageToolkit::ShowFileDialog(Form*, const FileDialog&) {
    return {};
}

Rectangle MessageToolkit::NormalPlacement(const Form& form) const {
    return form.Bounds();
}

}  // namespace morpho
