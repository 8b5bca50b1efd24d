#pragma once

#include "forms/controls.h"
#include "forms/option_button.h"
#include "windows_toolkit/control_peer.h"

namespace morpho {

class CommandButtonPeer : public ControlPeer {
  public:
    CommandButtonPeer(CommandButton& button, HWND parent, const PeerContext& context);
    void OnCommand(WORD code) override;

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    CommandButton& button_;
};

class CheckBoxPeer : public ControlPeer {
  public:
    CheckBoxPeer(CheckBox& box, HWND parent, const PeerContext& context);
    void OnCommand(WORD code) override;

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    CheckBox& box_;
};

class OptionButtonPeer : public ControlPeer {
  public:
    OptionButtonPeer(OptionButton& option, HWND parent, const PeerContext& context);
    void OnCommand(WORD code) override;

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    OptionButton& option_;
};

}  // namespace morpho
