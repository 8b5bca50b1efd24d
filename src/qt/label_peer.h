#pragma once

#include <functional>

#include "forms/controls.h"
#include "qt/control_peer.h"

namespace morpho {

// Text, or a link that mouse and keys press.
class LabelPeer : public ControlPeer {
  public:
    LabelPeer(Label& label, QWidget* parent, const PeerContext& context);

    // The widget of Label::Buddy.
    void SetBuddy(QWidget* widget);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    Label& label_;
    QWidget* buddy_ = nullptr;
};

}  // namespace morpho
