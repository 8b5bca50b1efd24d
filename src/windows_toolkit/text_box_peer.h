#pragma once

#include "forms/text_box.h"
#include "windows_toolkit/control_peer.h"

namespace morpho {

class TextBoxPeer : public ControlPeer {
  public:
    TextBoxPeer(TextBox& box, HWND parent, const PeerContext& context);
    void OnCommand(WORD code) override;
    HBRUSH OnColour(HDC device) override;

  protected:
    void WriteOwn(Aspects changed) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wide, LPARAM low) override;

  private:
    std::optional<LRESULT> OnCharacter(wchar_t unit);
    void WriteText();

    TextBox& box_;
    wchar_t firstHalf_ = 0;  // of a surrogate pair that is being typed
};

}  // namespace morpho
