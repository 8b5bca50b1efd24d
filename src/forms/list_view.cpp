#include "forms/list_view.h"

#include <algorithm>
#include <stdexcept>

#include "forms/control_visitor.h"
#include "text/ignoring_case.h"

namespace morpho {

void ListView::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

void ListView::SetView(View view) {
    if (view == view_) return;
    view_ = view;
    Changed(aspect::kValue);
}

void ListView::AddRow(ListViewRow row) {
    rows_.push_back(std::move(row));
    Changed(aspect::kItems);
}

void ListView::Clear() {
    rows_.clear();
    ++clearings_;
    selected_ = kNoEntry;
    Changed(aspect::kItems);
}

int ListView::FindRow(std::string_view text) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const ListViewRow& row) {
        return EqualIgnoringCase(row.text, text);
    });
    return found == rows_.end() ? kNoEntry : static_cast<int>(found - rows_.begin());
}

void ListView::SelectRow(int row) {
    if (row == selected_) return;
    SelectRowQuietly(row);
    if (row != kNoEntry) RaiseItemClick();
}

void ListView::SelectRowQuietly(int row) {
    if (row < kNoEntry || row >= RowCount()) throw std::out_of_range("row of a list view");
    if (row == selected_) return;
    selected_ = row;
    Changed(aspect::kValue);
}

bool ListView::UserClick(int row) {
    if (!IsOpenToUser() || row < 0 || row >= RowCount()) return false;
    SelectRowQuietly(row);
    RaiseItemClick();
    return true;
}

bool ListView::UserDeselect() {
    if (!IsOpenToUser()) return false;
    SelectRowQuietly(kNoEntry);
    return true;
}

void ListView::RaiseItemClick() {
    if (itemClick_) Raise("ItemClick", [this] { itemClick_(selected_); });
}

}  // namespace morpho
