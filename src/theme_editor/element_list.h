#pragma once

#include <string>
#include <string_view>

#include "forms/lists.h"

namespace morpho {

// The elements of the loaded theme whose pictures exist, kept in two parallel lists: the one with
// the check boxes, whose entries are the element keys, and a hidden one with the picture files as
// the style sheets name them. Elements with the same file (without regard to case) form an image
// group; groups are numbered from 1.
class ElementList {
  public:
    ElementList(CheckListBox& lstImageNames, ListBox& lstGifNames)
        : names_(lstImageNames), files_(lstGifNames) {}

    void Clear();
    void Add(std::string_view key, std::string_view file);

    int Count() const { return names_.ListCount(); }
    const std::string& Key(int row) const { return names_.List(row); }
    const std::string& File(int row) const { return files_.List(row); }
    int Group(int row) const { return names_.ItemData(row); }

    CheckListBox& Names() { return names_; }
    const CheckListBox& Names() const { return names_; }

  private:
    CheckListBox& names_;
    ListBox& files_;
    int groupCount_ = 0;
};

}  // namespace morpho
