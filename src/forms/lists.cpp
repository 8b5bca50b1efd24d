#include "forms/lists.h"

#include <algorithm>
#include <stdexcept>

#include "forms/control_visitor.h"
#include "text/ignoring_case.h"

namespace morpho {

void ComboBox::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}
void ListBox::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}
void CheckListBox::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

void ListControl::AddItem(std::string_view text) {
    entries_.emplace_back(text);
    Changed(aspect::kItems);
}

void ListControl::Clear() {
    entries_.clear();
    listIndex_ = kNoEntry;
    Changed(aspect::kItems);
}

int ListControl::FindExact(std::string_view text) const {
    const auto found =
        std::find_if(entries_.begin(), entries_.end(),
                     [&](const std::string& entry) { return EqualIgnoringCase(entry, text); });
    return found == entries_.end() ? kNoEntry : static_cast<int>(found - entries_.begin());
}

void ListControl::SetListIndex(int index) {
    if (index < kNoEntry || index >= ListCount()) throw std::out_of_range("list index");
    if (index == listIndex_) return;
    listIndex_ = index;
    Changed(aspect::kValue);
    Raise("Click", click_);
}

bool ListControl::UserSelect(int index) {
    if (!IsOpenToUser() || index < 0 || index >= ListCount()) return false;
    SetListIndex(index);
    return true;
}

void CheckListBox::AddItem(std::string_view text) {
    items_.emplace_back();
    ListControl::AddItem(text);
}

void CheckListBox::Clear() {
    items_.clear();
    topIndex_ = 0;
    ListControl::Clear();
}

int CheckListBox::SelectedCount() const {
    return static_cast<int>(std::count_if(items_.begin(), items_.end(),
                                          [](const Item& item) { return item.selected; }));
}

void CheckListBox::SetSelected(int index, bool selected) {
    if (Selected(index) == selected) return;
    SetSelectedQuietly(index, selected);
    if (itemCheck_) Raise("ItemCheck", [&] { itemCheck_(index); });
}

void CheckListBox::SetSelectedQuietly(int index, bool selected) {
    if (Selected(index) == selected) return;
    items_[static_cast<std::size_t>(index)].selected = selected;
    Changed(aspect::kValue);
}

bool CheckListBox::UserCheck(int index, bool selected) {
    if (!IsOpenToUser() || index < 0 || index >= ListCount()) return false;
    SetListIndex(index);
    SetSelected(index, selected);
    return true;
}

void CheckListBox::SetTopIndex(int index) {
    if (index == topIndex_) return;
    topIndex_ = index;
    Changed(aspect::kValue);
}

}  // namespace morpho
