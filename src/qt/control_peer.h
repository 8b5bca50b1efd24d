#pragma once

#include <QWidget>

#include "forms/control.h"
#include "forms/settling.h"

namespace morpho {

class PageServer;

// What the peers of one window share.
struct PeerContext {
    Settling& settling;
    PageServer& pages;
};

// Base of the peers that have a widget: what all kinds of control have in common. The widget
// belongs to its parent widget, which outlives the peer.
class ControlPeer : public Peer {
  public:
    ControlPeer(Control& control, QWidget* widget, const PeerContext& context);
    ~ControlPeer() override;
    ControlPeer(const ControlPeer&) = delete;
    ControlPeer& operator=(const ControlPeer&) = delete;

    Control& Model() const { return control_; }
    QWidget* Widget() const { return widget_; }

  protected:
    void Write(Aspects changed) final;
    // The kind's own state: caption, value, entries, picture.
    virtual void WriteOwn(Aspects changed) = 0;

    void BeforeReport() final { context_.settling.Flush(); }

    const PeerContext& Context() const { return context_; }
    // Connect the widget's signals to this receiver. A widget signals even while it is destroyed;
    // this one is destroyed with the peer, which ends the connections.
    QObject* Receiver() { return &receiver_; }

  private:
    Control& control_;
    QWidget* widget_;
    PeerContext context_;
    QObject receiver_;
};

}  // namespace morpho
