#include "qt/control_peer.h"

#include "qt/qt_text.h"

namespace morpho {

ControlPeer::ControlPeer(Control& control, QWidget* widget, const PeerContext& context)
    : control_(control), widget_(widget), context_(context) {
    widget->setObjectName(ToQt(control.Name()));
}

ControlPeer::~ControlPeer() {
    control_.Attach(nullptr);
}

void ControlPeer::Write(Aspects changed) {
    if (changed & aspect::kPlace) widget_->setGeometry(ToPixels(control_.Place()));
    if (changed & aspect::kCaption) {
        const QString toolTip = ToQt(control_.ShownToolTip());
        widget_->setToolTip(PlainToolTip(toolTip));
        widget_->setAccessibleName(ToQt(control_.AccessibleName()));
        widget_->setAccessibleDescription(toolTip);
    }
    if (changed & aspect::kEnabled) widget_->setEnabled(control_.Enabled());
    WriteOwn(changed);
    if (changed & aspect::kVisible) widget_->setVisible(control_.Visible());
    if (changed & aspect::kFocus) widget_->setFocus(Qt::OtherFocusReason);
    if (changed & aspect::kRepaint) widget_->repaint();
}

}  // namespace morpho
