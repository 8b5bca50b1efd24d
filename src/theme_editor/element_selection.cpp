#include "theme_editor/element_selection.h"

#include "shared/log.h"
#include "text/ignoring_case.h"

namespace morpho {

void ElementSelection::ItemChecked(int row, bool selected) {
    const int count = elements_.Select(row, selected);
    if (count > 1) ShowNotice();
    changed_();
}

void ElementSelection::SelectAll() {
    WriteLog(program_, "Selecting all theme elements...");
    SelectEach("", true);
    WriteLog(program_, "All theme elements selected.");
}

void ElementSelection::SelectNone() {
    WriteLog(program_, "Deselecting all theme elements...");
    SelectEach("", false);
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
    if (SelectEach(prefix, true)) ShowNotice();
    std::string done(groupName);
    done.front() = static_cast<char>(done.front() - 'a' + 'A');
    WriteLog(program_, done + " theme elements selected.");
}

bool ElementSelection::SelectEach(std::string_view prefix, bool selected) {
    bool groupTouched = false;
    for (int row = 0; row < elements_.Count(); ++row) {
        if (elements_.IsSelected(row) == selected) continue;
        if (!StartsWithIgnoringAsciiCase(elements_.Key(row), prefix)) continue;
        if (elements_.Select(row, selected) > 1) groupTouched = true;
        changed_();
    }
    return groupTouched;
}

void ElementSelection::ShowNotice() {
    if (showDuplicateNotice_) showDuplicateNotice_ = showNotice_();
}

}  // namespace morpho
