#pragma once

#include "addin/add_in.h"

namespace morpho {

// The image editor's add-in.
class AddInIM : public AddIn {
  public:
    AddInIM(const Program& program, EditorFactory makeEditor);

  private:
    void CreateItems(CommandBars& bars) override;
    std::string_view MissingItems() const override;
    std::vector<CommandItem*> Items() override { return {&m_btnIM, &m_btnIMToolbar}; }
    void CreateToolbarItem(CommandBars& bars);

    CommandItem m_btnIM;         // in the Format menu
    CommandItem m_btnIMToolbar;  // on the toolbar "Pictures"
};

}  // namespace morpho
