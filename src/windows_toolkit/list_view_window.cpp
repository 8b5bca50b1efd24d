#include "windows_toolkit/list_view_window.h"

#include "windows_system/wide.h"

#include <windowsx.h>

namespace morpho {

void AppendRow(HWND list, const std::string& text, int image) {
    std::wstring wide = Wide(text);
    LVITEMW row{};
    row.mask = LVIF_TEXT | LVIF_IMAGE;
    row.iItem = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    row.pszText = wide.data();
    row.iImage = image;
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&row));
}

void SetCell(HWND list, int row, int column, const std::string& text) {
    std::wstring wide = Wide(text);
    LVITEMW cell{};
    cell.iSubItem = column;
    cell.pszText = wide.data();
    SendMessageW(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&cell));
}

int SelectedRow(HWND list) {
    return static_cast<int>(
        SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void SelectRow(HWND list, int row) {
    if (row == SelectedRow(list)) return;
    LVITEMW state{};
    state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    if (row < 0) {
        state.stateMask = LVIS_SELECTED;  // The keys start from the row that had it.
    } else {
        state.state = LVIS_SELECTED | LVIS_FOCUSED;
    }
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&state));
    if (row >= 0) SendMessageW(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

LVHITTESTINFO HitRow(HWND list, POINT at) {
    LVHITTESTINFO hit{};
    hit.pt = at;
    SendMessageW(list, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return hit;
}

POINT PointOf(LPARAM mouse) {
    return {GET_X_LPARAM(mouse), GET_Y_LPARAM(mouse)};
}

}  // namespace morpho
