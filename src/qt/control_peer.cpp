#include "qt/control_peer.h"

#include "forms/form.h"
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
        const QString toolTip = ToQt(control_.ToolTip());
        widget_->setToolTip(PlainToolTip(toolTip));
        widget_->setAccessibleName(ToQt(control_.AccessibleName()));
        widget_->setAccessibleDescription(toolTip.trimmed());
    }
    if (changed & aspect::kEnabled) {
        widget_->setEnabled(control_.Enabled());
        KeepFocus();
    }
    WriteOwn(changed);
    if (changed & aspect::kVisible) widget_->setVisible(control_.Visible());
    if (changed & aspect::kFocus) widget_->setFocus(Qt::OtherFocusReason);
    if (changed & aspect::kRepaint) widget_->repaint();
}

// A container that is disabled takes the focus off what it holds; enabled again, it gives it back.
void ControlPeer::KeepFocus() {
    Control* const focused = control_.OwnerForm().Focused();
    if (widget_->window()->focusWidget() != nullptr || focused == nullptr) return;
    if (focused->IsOperable()) focused->SetFocus();
}

}  // namespace morpho
