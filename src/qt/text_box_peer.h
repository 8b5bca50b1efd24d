#pragma once

#include "forms/text_box.h"
#include "qt/control_peer.h"

class QLineEdit;
class QPlainTextEdit;

namespace morpho {

class TextBoxPeer : public ControlPeer {
  public:
    TextBoxPeer(TextBox& box, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    // One of the two, by the kind of box.
    QLineEdit* line_;
    QPlainTextEdit* page_;
    TextBox& box_;
};

}  // namespace morpho
