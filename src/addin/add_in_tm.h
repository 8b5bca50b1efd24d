#pragma once

#include "addin/add_in.h"

namespace morpho {

// The theme editor's add-in.
class AddInTM : public AddIn {
  public:
    explicit AddInTM(const Program& program);

  private:
    void CreateItems(CommandBars& bars) override;
    std::string_view MissingItems() const override;
    std::vector<CommandItem*> Items() override { return {&p_mctlBtnEvents}; }

    CommandItem p_mctlBtnEvents;  // in the Format menu
};

}  // namespace morpho
