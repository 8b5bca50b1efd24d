#pragma once

#include <QSlider>
#include <QSpinBox>

#include "forms/controls.h"
#include "qt/control_peer.h"

namespace morpho {

// While the thumb is dragged every step is a scroll, and letting go settles. Keys, wheel and clicks
// beside the thumb scroll too and settle once they pause.
class SliderPeer : public ControlPeer {
  public:
    SliderPeer(Slider& slider, QWidget* parent, const PeerContext& context);
    ~SliderPeer() override;

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    void Moved(int value);
    void LetGo(int value);
    bool Settle();

    Slider& slider_;
    QSlider* widget_;
};

// A pair of arrows.
class ScrollBarPeer : public ControlPeer {
  public:
    ScrollBarPeer(ScrollBar& bar, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    ScrollBar& bar_;
    QSpinBox* widget_;
};

}  // namespace morpho
