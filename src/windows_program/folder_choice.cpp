#include "windows_program/folder_choice.h"

#include "windows_com/com_pointer.h"
// Needs the one that the other includes.
#include <shobjidl.h>

namespace morpho {

std::filesystem::path ChooseWebFolder() {
    ComPointer<IFileOpenDialog> dialog;
    if (FAILED(::CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER,
                                  IID_IFileOpenDialog, dialog.OutVoid())))
        return {};
    dialog->SetOptions(FOS_PICKFOLDERS | FOS_FORCEFILESYSTEM);
    dialog->SetTitle(L"Open Web");
    ComPointer<IShellItem> folder;
    if (FAILED(dialog->Show(nullptr)) || FAILED(dialog->GetResult(folder.Out()))) return {};
    PWSTR name = nullptr;
    if (FAILED(folder->GetDisplayName(SIGDN_FILESYSPATH, &name))) return {};
    std::filesystem::path path = name;
    ::CoTaskMemFree(name);
    return path;
}

}  // namespace morpho
