#include "theme_editor/element_list.h"

#include <algorithm>

#include "text/ignoring_case.h"

namespace morpho {

void ElementList::Clear() {
    elements_.clear();
    groupCount_ = 0;
    Changed();
}

void ElementList::Add(std::string_view key, std::string_view file) {
    elements_.push_back({std::string(key), std::string(file), GroupOf(file)});
    Changed();
}

int ElementList::GroupOf(std::string_view file) {
    const auto twin = std::find_if(elements_.begin(), elements_.end(), [&](const Element& element) {
        return EqualIgnoringCase(element.file, file);
    });
    return twin == elements_.end() ? ++groupCount_ : twin->group;
}

int ElementList::SelectedCount() const {
    return static_cast<int>(std::count_if(elements_.begin(), elements_.end(),
                                          [](const Element& element) { return element.selected; }));
}

int ElementList::Select(int row, bool selected) {
    const int group = Group(row);
    int count = 0;
    for (Element& element : elements_) {
        if (element.group != group) continue;
        element.selected = selected;
        ++count;
    }
    Changed();
    return count;
}

void ElementList::Changed() const {
    if (changed_) changed_();
}

}  // namespace morpho
