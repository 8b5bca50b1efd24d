#include "windows_toolkit/list_view_peer.h"

#include "windows_system/wide.h"
#include "windows_toolkit/list_view_window.h"

namespace morpho {

ListViewPeer::ListViewPeer(ListView& list, HWND parent, const PeerContext& context)
    : ControlPeer(list, parent, context, WC_LISTVIEWW,
                  LVS_LIST | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS,
                  WS_EX_CLIENTEDGE),
      list_(list),
      icons_(context.dpi) {
    constexpr LPARAM kStyle = LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP;
    SendMessageW(Window(), LVM_SETEXTENDEDLISTVIEWSTYLE, 0, kStyle);
    SendMessageW(Window(), LVM_SETIMAGELIST, LVSIL_SMALL,
                 reinterpret_cast<LPARAM>(icons_.Images()));
    AddColumns();
}

void ListViewPeer::AddColumns() {
    for (std::size_t at = 0; at < list_.Columns().size(); ++at) {
        std::wstring caption = Wide(list_.Columns()[at].caption);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.pszText = caption.data();
        column.cx = Pixels(list_.Columns()[at].width);
        SendMessageW(Window(), LVM_INSERTCOLUMNW, at, reinterpret_cast<LPARAM>(&column));
    }
}

std::optional<LRESULT> ListViewPeer::OnMessage(UINT message, WPARAM, LPARAM low) {
    if (message == WM_LBUTTONDOWN) {
        const int pressed = HitRow(Window(), PointOf(low)).iItem;
        pressedSelected_ = pressed >= 0 && pressed == SelectedRow(Window());
    }
    return {};
}

// A row that becomes selected is told by its change, a click on the selected one or beside the rows
// is not.
std::optional<LRESULT> ListViewPeer::OnNotify(const NMHDR& header) {
    if (header.code == LVN_ITEMCHANGED) {
        const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
        if (~change.uOldState & change.uNewState & LVIS_SELECTED) Clicked();
    } else if (header.code == NM_CLICK && (pressedSelected_ || SelectedRow(Window()) < 0)) {
        Clicked();
    }
    return {};
}

void ListViewPeer::Clicked() {
    Did([this] {
        const int row = SelectedRow(Window());
        if (row < 0) {
            list_.UserDeselect();
        } else {
            list_.UserClick(row);
        }
    });
}

void ListViewPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kItems) WriteRows();
    if (changed & aspect::kValue) WriteView();
    if (changed & (aspect::kValue | aspect::kItems)) SelectRow(Window(), list_.SelectedRow());
}

void ListViewPeer::WriteRows() {
    if (clearings_ != list_.Clearings()) {
        SendMessageW(Window(), LVM_DELETEALLITEMS, 0, 0);
        rows_ = 0;
        clearings_ = list_.Clearings();
    }
    for (; rows_ < list_.RowCount(); ++rows_) {
        const ListViewRow& row = list_.Row(rows_);
        AppendRow(Window(), row.text, icons_.Index(row.image));
        for (std::size_t at = 0; at < row.details.size(); ++at)
            SetCell(Window(), rows_, static_cast<int>(at) + 1, row.details[at]);
    }
}

void ListViewPeer::WriteView() {
    const DWORD view = list_.ShownView() == ListView::View::kReport ? LVS_REPORT : LVS_LIST;
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(Window(), GWL_STYLE));
    if ((style & LVS_TYPEMASK) == view) return;
    SetWindowLongPtrW(Window(), GWL_STYLE, static_cast<LONG_PTR>((style & ~LVS_TYPEMASK) | view));
    InvalidateRect(Window(), nullptr, TRUE);  // The list paints the new view only in part.
}

}  // namespace morpho
