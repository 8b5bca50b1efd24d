#pragma once

#include <QComboBox>
#include <QListWidget>
#include <string>
#include <vector>

#include "forms/lists.h"
#include "qt/control_peer.h"

namespace morpho {

class ComboBoxPeer : public ControlPeer {
  public:
    ComboBoxPeer(ComboBox& box, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    ComboBox& box_;
    QComboBox* widget_;
    std::vector<std::string> shown_;
};

class ListBoxPeer : public ControlPeer {
  public:
    ListBoxPeer(ListBox& list, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    ListBox& list_;
    QListWidget* widget_;
    std::vector<std::string> shown_;
};

// Brings a widget's entries to the model's: `shown` is what it has, `add` appends one, `clear`
// removes all. A list grows at its end or is cleared, so what is there already is left alone.
template <typename Add, typename ClearAll>
void WriteEntries(const ListControl& model, std::vector<std::string>& shown, Add add,
                  ClearAll clear) {
    const auto count = static_cast<std::size_t>(model.ListCount());
    bool same = shown.size() <= count;
    for (std::size_t at = 0; same && at < shown.size(); ++at)
        same = shown[at] == model.List(static_cast<int>(at));
    if (!same) {
        clear();
        shown.clear();
    }
    while (shown.size() < count) {
        shown.push_back(model.List(static_cast<int>(shown.size())));
        add(shown.back());
    }
}

}  // namespace morpho
