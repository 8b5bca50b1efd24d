#pragma once

#include "forms/sliders.h"
#include "windows_toolkit/control_peer.h"

namespace morpho {

// While the thumb is dragged every step is a scroll; letting it go settles. Keys, wheel and clicks
// on the track scroll too, and settle after a pause.
class SliderPeer : public ControlPeer {
  public:
    SliderPeer(Slider& slider, HWND parent, const PeerContext& context);
    ~SliderPeer() override;

    void OnScroll(WORD code) override;

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    int Position() const;
    void Moved();
    void LetGo();
    void HoldSettling();
    bool Settle();

    Slider& slider_;
    bool dragged_ = false;
};

}  // namespace morpho
