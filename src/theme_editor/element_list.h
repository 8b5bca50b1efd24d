#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace morpho {

// The elements of the loaded theme whose pictures exist, in catalogue order, and which of them are
// selected for recolouring. Elements with the same file (without regard to case) form an image
// group; groups are numbered from 1. The elements of a group are always selected together.
class ElementList {
  public:
    // Called after every change. It may read the list, but must not change it.
    void OnChange(std::function<void()> changed) { changed_ = std::move(changed); }

    void Clear();
    // `file` is the picture as the style sheet names it.
    void Add(std::string_view key, std::string_view file);

    int Count() const { return static_cast<int>(elements_.size()); }
    const std::string& Key(int row) const { return At(row).key; }
    const std::string& File(int row) const { return At(row).file; }
    int Group(int row) const { return At(row).group; }

    bool IsSelected(int row) const { return At(row).selected; }
    int SelectedCount() const;
    // Selects or deselects the row's whole group. Returns how many elements the group has.
    int Select(int row, bool selected);

  private:
    struct Element {
        std::string key;
        std::string file;
        int group = 0;
        bool selected = false;
    };

    const Element& At(int row) const { return elements_.at(static_cast<std::size_t>(row)); }
    int GroupOf(std::string_view file);
    void Changed() const;

    std::vector<Element> elements_;
    int groupCount_ = 0;
    std::function<void()> changed_;
};

}  // namespace morpho
