#pragma once

#include <string>
#include <vector>

#include "forms/controls.h"

namespace morpho {

inline constexpr int kNoEntry = -1;

// Texts with an index, as lists and combo boxes hold them. Indices are zero-based.
class ListControl : public Control {
  public:
    ListControl(Container& parent, const ControlSpec& spec, Handler click = {})
        : Control(parent, spec), click_(std::move(click)) {}

    int ListCount() const { return static_cast<int>(entries_.size()); }
    const std::string& List(int index) const {
        return entries_.at(static_cast<std::size_t>(index));
    }
    virtual void AddItem(std::string_view text);
    virtual void Clear();
    // The entry whose whole text equals `text` without regard to case, or kNoEntry.
    int FindExact(std::string_view text) const;

    // The current entry, or kNoEntry. Changing it raises Click; an index outside the list throws.
    int ListIndex() const { return listIndex_; }
    void SetListIndex(int index);
    bool UserSelect(int index);

  private:
    std::vector<std::string> entries_;
    int listIndex_ = kNoEntry;
    Handler click_;
};

// A drop-down list.
class ComboBox : public ListControl {
  public:
    using ListControl::ListControl;
    // The text of the current entry; empty when there is none.
    std::string Text() const { return ListIndex() == kNoEntry ? std::string() : List(ListIndex()); }
    void Accept(ControlVisitor& visitor) override;
};

class ListBox : public ListControl {
  public:
    using ListControl::ListControl;
    void Accept(ControlVisitor& visitor) override;
};

// A list whose entries carry a check box and a number.
class CheckListBox : public ListControl {
  public:
    using ItemHandler = std::function<void(int index)>;
    CheckListBox(Container& parent, const ControlSpec& spec, ItemHandler itemCheck)
        : ListControl(parent, spec), itemCheck_(std::move(itemCheck)) {}

    void AddItem(std::string_view text) override;
    void Clear() override;

    bool Selected(int index) const { return items_.at(static_cast<std::size_t>(index)).selected; }
    int SelectedCount() const;
    // Checks or unchecks an entry, which raises ItemCheck.
    void SetSelected(int index, bool selected);
    void SetSelectedQuietly(int index, bool selected);
    // The user checks or unchecks an entry, which also becomes the current one.
    bool UserCheck(int index, bool selected);

    int ItemData(int index) const { return items_.at(static_cast<std::size_t>(index)).data; }
    void SetItemData(int index, int data) {
        items_.at(static_cast<std::size_t>(index)).data = data;
    }

    // The entry at the top of the visible part.
    int TopIndex() const { return topIndex_; }
    void SetTopIndex(int index);
    // The user scrolled the list.
    void UserScroll(int topIndex) { topIndex_ = topIndex; }
    void Accept(ControlVisitor& visitor) override;

  private:
    struct Item {
        bool selected = false;
        int data = 0;
    };
    std::vector<Item> items_;
    int topIndex_ = 0;
    ItemHandler itemCheck_;
};

}  // namespace morpho
