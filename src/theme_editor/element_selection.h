#pragma once

#include <functional>
#include <string_view>

#include "shared/component.h"
#include "theme_editor/element_list.h"

namespace morpho {

// Which elements are ticked for recolouring. Elements of one image group are always ticked
// together.
class ElementSelection {
  public:
    // `showNotice` explains why several elements changed and returns whether it may be shown again;
    // `changed` hears of every change of the selection that a person sees.
    ElementSelection(const Program& program, ElementList& elements,
                     std::function<bool()> showNotice, std::function<void()> changed)
        : program_(program),
          elements_(elements),
          showNotice_(std::move(showNotice)),
          changed_(std::move(changed)) {}

    // An entry's check box has changed.
    void ItemChecked(int row);
    void SelectAll();
    void SelectNone();
    // These add to the selection.
    void SelectActive();
    void SelectNormal();

    // Keeps the notice quiet and the list's scroll position while it lives.
    class Quiet {
      public:
        explicit Quiet(ElementSelection& selection);
        ~Quiet();
        Quiet(const Quiet&) = delete;
        Quiet& operator=(const Quiet&) = delete;

      private:
        ElementSelection& selection_;
        bool showDuplicateNotice_;
        int topIndex_;
        int listIndex_;
    };

  private:
    void SelectGroup(std::string_view prefix, std::string_view groupName);
    void SetAll(bool selected);
    void ShowNotice();

    const Program program_;
    ElementList& elements_;
    std::function<bool()> showNotice_;
    std::function<void()> changed_;
    bool showDuplicateNotice_ = true;  // until the person has had enough of it in this window
    bool groupTouched_ = false;        // the last change took other entries of the group along
};

}  // namespace morpho
