#include "windows_toolkit/file_dialog_box.h"

#include <commdlg.h>

#include <vector>

#include "windows_system/full_path.h"
#include "windows_system/wide.h"

namespace morpho {

namespace {

// The flags of the request are the system's own. They are also why this is GetOpenFileName and not
// the newer interface: it takes them as they are, and shows the same dialog.
static_assert(kOverwritePrompt == OFN_OVERWRITEPROMPT && kHideReadOnly == OFN_HIDEREADONLY &&
              kFileMustExist == OFN_FILEMUSTEXIST);

// Descriptions and patterns, each ended by a zero, and one more at the end.
std::wstring FilterOf(const std::string& filter) {
    std::wstring list;
    for (const FileType& type : ReadFilter(filter)) {
        list += Wide(type.description) + L'\0';
        std::string patterns;
        for (const std::string& pattern : type.patterns)
            patterns += (patterns.empty() ? "" : ";") + pattern;
        list += Wide(patterns) + L'\0';
    }
    return list + L'\0';
}

}  // namespace

std::optional<std::string> RunFileDialog(HWND owner, const FileDialog& request) {
    std::vector<wchar_t> path(kMaxPathCharacters);
    lstrcpynW(path.data(), Wide(request.name).c_str(), static_cast<int>(kMaxPathCharacters));
    const std::wstring title = Wide(request.title), filter = FilterOf(request.filter);
    const std::wstring folder = Wide(request.folder);
    const bool saves = request.mode == FileDialog::Mode::kSave;

    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = filter.c_str();
    dialog.nFilterIndex = 1;
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = static_cast<DWORD>(path.size());
    dialog.lpstrTitle = title.empty() ? nullptr : title.c_str();
    dialog.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
    dialog.Flags =
        static_cast<DWORD>(request.flags) | OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_HIDEREADONLY;
    if (!(saves ? GetSaveFileNameW(&dialog) : GetOpenFileNameW(&dialog))) return std::nullopt;
    return Narrow(path.data());
}

}  // namespace morpho
