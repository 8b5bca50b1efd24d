#pragma once

#include <string>
#include <vector>

#include "forms/lists.h"

namespace morpho {

// The entries that a list's widget shows. Its peer compares them with the model and adds only what
// is new.
class EntriesMirror {
  public:
    // Makes the widget show the model's entries: `add` appends one, `clear` removes all. A list
    // only grows at its end or is cleared, so entries already shown can stay.
    template <typename Add, typename ClearAll>
    void Write(const ListControl& model, Add add, ClearAll clear) {
        if (!StartsLike(model)) {
            clear();
            shown_.clear();
        }
        while (shown_.size() < static_cast<std::size_t>(model.ListCount())) {
            shown_.push_back(model.List(static_cast<int>(shown_.size())));
            add(shown_.back());
        }
    }

  private:
    bool StartsLike(const ListControl& model) const {
        if (shown_.size() > static_cast<std::size_t>(model.ListCount())) return false;
        for (std::size_t at = 0; at < shown_.size(); ++at)
            if (shown_[at] != model.List(static_cast<int>(at))) return false;
        return true;
    }

    std::vector<std::string> shown_;
};

}  // namespace morpho
