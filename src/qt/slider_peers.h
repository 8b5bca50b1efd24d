#pragma once

#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>

#include "forms/controls.h"
#include "qt/control_peer.h"

namespace morpho {

// While the thumb is dragged every step is a scroll; letting it go settles. Keys, wheel and clicks
// on the track scroll too, and settle after a pause.
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

// A scroll bar in the shape of a pair of arrows.
class ArrowsPeer : public ControlPeer {
  public:
    ArrowsPeer(ScrollBar& bar, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    ScrollBar& bar_;
    QSpinBox* widget_;
};

// A scroll bar with a thumb.
class ScrollBarPeer : public ControlPeer {
  public:
    ScrollBarPeer(ScrollBar& bar, QWidget* parent, const PeerContext& context);

  protected:
    void WriteOwn(Aspects changed) override;

  private:
    ScrollBar& bar_;
    QScrollBar* widget_;
};

}  // namespace morpho
