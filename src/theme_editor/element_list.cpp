#include "theme_editor/element_list.h"

namespace morpho {

void ElementList::Clear() {
    names_.Clear();
    files_.Clear();
    groupCount_ = 0;
}

void ElementList::Add(std::string_view key, std::string_view file) {
    const int twin = files_.FindExact(file);
    const int group = twin == kNoEntry ? ++groupCount_ : Group(twin);
    files_.AddItem(file);
    names_.AddItem(key);
    names_.SetItemData(names_.ListCount() - 1, group);
}

}  // namespace morpho
