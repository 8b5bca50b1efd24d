#include "windows_toolkit/check_list_peer.h"

#include "windows_toolkit/list_view_window.h"

namespace morpho {

namespace {

// The state images of a row's box: none, unchecked, checked.
constexpr UINT kUnchecked = INDEXTOSTATEIMAGEMASK(1), kChecked = INDEXTOSTATEIMAGEMASK(2);

void SetBox(HWND list, int row, bool checked) {
    LVITEMW state{};
    state.stateMask = LVIS_STATEIMAGEMASK;
    state.state = checked ? kChecked : kUnchecked;
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&state));
}

int SystemDpi() {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi;
}

// The list makes its boxes for the system's resolution; that of its monitor may be another. The
// list owns the new ones, too.
void ScaleBoxes(HWND list, int dpi) {
    const auto boxes =
        reinterpret_cast<HIMAGELIST>(SendMessageW(list, LVM_GETIMAGELIST, LVSIL_STATE, 0));
    int size = 0;
    if (SystemDpi() == dpi || !ImageList_GetIconSize(boxes, &size, &size)) return;
    const int scaledSize = MulDiv(size, dpi, SystemDpi());
    const HIMAGELIST scaled =
        ImageList_Create(scaledSize, scaledSize, ILC_COLOR32 | ILC_MASK, 2, 0);
    for (int at = 0; at < ImageList_GetImageCount(boxes); ++at) {
        const HICON box = ImageList_GetIcon(boxes, at, ILD_TRANSPARENT);
        ImageList_ReplaceIcon(scaled, -1, box);
        DestroyIcon(box);
    }
    SendMessageW(list, LVM_SETIMAGELIST, LVSIL_STATE, reinterpret_cast<LPARAM>(scaled));
    ImageList_Destroy(boxes);
}

}  // namespace

CheckListPeer::CheckListPeer(CheckListBox& list, HWND parent, const PeerContext& context)
    : ControlPeer(list, parent, context, WC_LISTVIEWW,
                  LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_SINGLESEL | LVS_SHOWSELALWAYS,
                  WS_EX_CLIENTEDGE),
      list_(list) {
    // The label tip shows the whole text of an entry that is cut off.
    constexpr LPARAM kStyle = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP;
    SendMessageW(Window(), LVM_SETEXTENDEDLISTVIEWSTYLE, 0, kStyle);
    ScaleBoxes(Window(), context.dpi);
    LVCOLUMNW column{};
    SendMessageW(Window(), LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
}

std::optional<LRESULT> CheckListPeer::OnNotify(const NMHDR& header) {
    if (header.code == LVN_ITEMCHANGED) Changed(reinterpret_cast<const NMLISTVIEW&>(header));
    if (header.code == NM_CLICK || header.code == NM_DBLCLK)
        Clicked(reinterpret_cast<const NMITEMACTIVATE&>(header), header.code == NM_DBLCLK);
    return {};
}

void CheckListPeer::Changed(const NMLISTVIEW& change) {
    const auto changed = [&](UINT state) {
        return ((change.uOldState ^ change.uNewState) & state) != 0;
    };
    if (!(change.uChanged & LVIF_STATE)) return;
    if (changed(LVIS_STATEIMAGEMASK)) {
        Report([&] {
            const bool checked = (change.uNewState & LVIS_STATEIMAGEMASK) == kChecked;
            checked_.at(static_cast<std::size_t>(change.iItem)) = checked;
            Did([&] { list_.UserCheck(change.iItem, checked); });
        });
    } else if (changed(LVIS_SELECTED) && (change.uNewState & LVIS_SELECTED)) {
        Did([&] { list_.UserSelect(change.iItem); });
    }
}

void CheckListPeer::Clicked(const NMITEMACTIVATE& click, bool twice) {
    const LVHITTESTINFO hit = HitRow(Window(), click.ptAction);
    // A click beside the entries would end the selection.
    if (hit.iItem < 0) Show(aspect::kValue);
    if (hit.iItem >= 0 && twice && (hit.flags & LVHT_ONITEMSTATEICON) != LVHT_ONITEMSTATEICON)
        SetBox(Window(), hit.iItem, !checked_.at(static_cast<std::size_t>(hit.iItem)));
}

// However the list was scrolled, it paints then.
std::optional<LRESULT> CheckListPeer::OnMessage(UINT message, WPARAM, LPARAM) {
    if (message == WM_PAINT) Report([this] { list_.UserScroll(top_ = TopRow()); });
    return {};
}

void CheckListPeer::WriteOwn(Aspects changed) {
    if (changed & aspect::kItems) WriteEntries();
    if (changed & (aspect::kPlace | aspect::kItems)) FillWidth();
    if (!(changed & (aspect::kValue | aspect::kItems))) return;
    WriteChecks();
    WritePosition();
}

void CheckListPeer::WriteEntries() {
    const auto add = [this](const std::string& text) {
        AppendRow(Window(), text, I_IMAGENONE);
        checked_.push_back(false);
    };
    entries_.Write(list_, add, [this] {
        SendMessageW(Window(), LVM_DELETEALLITEMS, 0, 0);
        checked_.clear();
        top_ = 0;
    });
}

void CheckListPeer::FillWidth() {
    RECT area;
    GetClientRect(Window(), &area);
    if (area.right != SendMessageW(Window(), LVM_GETCOLUMNWIDTH, 0, 0))
        SendMessageW(Window(), LVM_SETCOLUMNWIDTH, 0, area.right);
}

void CheckListPeer::WriteChecks() {
    for (int row = 0; row < list_.ListCount(); ++row) {
        const auto at = static_cast<std::size_t>(row);
        if (checked_[at] == list_.Selected(row)) continue;
        checked_[at] = list_.Selected(row);
        SetBox(Window(), row, checked_[at]);
    }
}

void CheckListPeer::WritePosition() {
    SelectRow(Window(), list_.ListIndex());
    if (list_.TopIndex() != top_ && list_.TopIndex() < list_.ListCount()) {
        RECT row{LVIR_BOUNDS, 0, 0, 0};
        SendMessageW(Window(), LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
        const int rows = list_.TopIndex() - TopRow();
        SendMessageW(Window(), LVM_SCROLL, 0, rows * (row.bottom - row.top));
    }
    // The end of the list may stop the scrolling earlier, a new current entry may cause it.
    top_ = TopRow();
    list_.UserScroll(top_);
}

int CheckListPeer::TopRow() const {
    return static_cast<int>(SendMessageW(Window(), LVM_GETTOPINDEX, 0, 0));
}

}  // namespace morpho
