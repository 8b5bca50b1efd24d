#pragma once

#include <functional>
#include <string_view>

#include "shared/component.h"
#include "theme_editor/element_list.h"

namespace morpho {

// What a person does to the selection: check boxes and the four buttons.
class ElementSelection {
  public:
    // `showNotice` explains why several elements changed and returns whether it may be shown again;
    // `changed` is called for every change that the person makes.
    ElementSelection(const Program& program, ElementList& elements,
                     std::function<bool()> showNotice, std::function<void()> changed)
        : program_(program),
          elements_(elements),
          showNotice_(std::move(showNotice)),
          changed_(std::move(changed)) {}

    // The row's check box has changed, and its group follows.
    void ItemChecked(int row, bool selected);
    void SelectAll();
    void SelectNone();
    // These add to the selection.
    void SelectActive();
    void SelectNormal();

  private:
    // Selects or deselects every element whose key has the prefix. Returns whether a changed one
    // shares its image with others.
    bool SelectEach(std::string_view prefix, bool selected);
    void SelectGroup(std::string_view prefix, std::string_view groupName);
    void ShowNotice();

    const Program program_;
    ElementList& elements_;
    std::function<bool()> showNotice_;
    std::function<void()> changed_;
    bool showDuplicateNotice_ = true;  // until the person ticks "Don't show this message again"
};

}  // namespace morpho
