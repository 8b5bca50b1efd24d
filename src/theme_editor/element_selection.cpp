#include "theme_editor/element_selection.h"

#include "shared/log.h"
#include "text/ignoring_case.h"

namespace morpho {

ElementSelection::Quiet::Quiet(ElementSelection& selection)
    : selection_(selection),
      showDuplicateNotice_(selection.showDuplicateNotice_),
      topIndex_(selection.elements_.Names().TopIndex()),
      listIndex_(selection.elements_.Names().ListIndex()) {
    selection.showDuplicateNotice_ = false;
    selection.groupTouched_ = false;
}

ElementSelection::Quiet::~Quiet() {
    CheckListBox& names = selection_.elements_.Names();
    names.SetTopIndex(topIndex_);
    if (listIndex_ < names.ListCount()) names.SetListIndex(listIndex_);
    selection_.showDuplicateNotice_ = showDuplicateNotice_;
}

void ElementSelection::ItemChecked(int row) {
    CheckListBox& names = elements_.Names();
    const bool selected = names.Selected(row);
    int count = 0;
    for (int i = 0; i < elements_.Count(); ++i) {
        if (elements_.Group(i) != elements_.Group(row)) continue;
        // Quietly: the rest of the group follows this entry and is no change of its own.
        names.SetSelectedQuietly(i, selected);
        ++count;
    }
    if (count > 1) {
        groupTouched_ = true;
        if (showDuplicateNotice_) ShowNotice();
    }
    changed_();
}

void ElementSelection::SelectAll() {
    WriteLog(program_, "Selecting all theme elements...");
    SetAll(true);
    WriteLog(program_, "All theme elements selected.");
}

void ElementSelection::SelectNone() {
    WriteLog(program_, "Deselecting all theme elements...");
    SetAll(false);
    WriteLog(program_, "All theme elements deselected.");
}

void ElementSelection::SelectActive() {
    SelectGroup("active/", "active");
}

void ElementSelection::SelectNormal() {
    SelectGroup("normal/", "normal");
}

void ElementSelection::SelectGroup(std::string_view prefix, std::string_view groupName) {
    WriteLog(program_, "Selecting " + std::string(groupName) + " theme elements...");
    {
        const Quiet quiet(*this);
        for (int row = 0; row < elements_.Count(); ++row) {
            if (StartsWithIgnoringCase(elements_.Key(row), prefix))
                elements_.Names().SetSelected(row, true);
        }
    }
    if (groupTouched_ && showDuplicateNotice_) ShowNotice();
    std::string done(groupName);
    done.front() = static_cast<char>(done.front() - 'a' + 'A');
    WriteLog(program_, done + " theme elements selected.");
}

void ElementSelection::SetAll(bool selected) {
    const Quiet quiet(*this);
    for (int row = 0; row < elements_.Count(); ++row)
        elements_.Names().SetSelected(row, selected);
}

void ElementSelection::ShowNotice() {
    elements_.Names().Refresh();
    showDuplicateNotice_ = showNotice_();
}

}  // namespace morpho
