#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "forms/controls.h"
#include "forms/option_button.h"
#include "qt/control_peer.h"

namespace morpho {

class CommandButtonPeer : public ControlPeer {
  public:
    CommandButtonPeer(CommandButton& button, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    CommandButton& button_;
    QPushButton* widget_;
};

class CheckBoxPeer : public ControlPeer {
  public:
    CheckBoxPeer(CheckBox& box, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    CheckBox& box_;
    QCheckBox* widget_;
};

class OptionButtonPeer : public ControlPeer {
  public:
    OptionButtonPeer(OptionButton& option, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    OptionButton& option_;
    QRadioButton* widget_;
};

}  // namespace morpho
