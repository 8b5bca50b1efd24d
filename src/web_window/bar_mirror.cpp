#include "web_window/bar_mirror.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "qt/qt_text.h"

namespace morpho {

namespace {

// The faces of old buttons have no transparency: their first point has the background's colour.
QIcon IconOf(const std::string& face) {
    QImage picture =
        QImage::fromData(QByteArray::fromStdString(face)).convertToFormat(QImage::Format_ARGB32);
    if (picture.isNull()) return {};
    const QRgb background = picture.pixel(0, 0);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == background) picture.setPixel(x, y, qRgba(0, 0, 0, 0));
        }
    }
    return QPixmap::fromImage(picture);
}

}  // namespace

BarMirror::BarMirror(HostCommandBars& bars, QMainWindow& window) : bars_(bars), window_(window) {
    for (const auto& bar : bars_.All())
        AddBar(*bar);
    bars_.AddObserver(*this);
}

BarMirror::~BarMirror() {
    bars_.RemoveObserver(*this);
}

void BarMirror::AddBar(const HostBar& bar) {
    if (&bar == bars_.MenuBar().get()) {
        widgets_[bar.controls.get()] = window_.menuBar();
    } else {
        QToolBar* const toolBar = window_.addToolBar(ToQt(bar.name));
        toolBar->setObjectName(ToQt(bar.name));
        toolBar->setMovable(false);
        toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        widgets_[bar.controls.get()] = toolBar;
    }
    AddAll(*bar.controls);
}

void BarMirror::AddAll(const HostControls& controls) {
    for (const auto& control : controls.All())
        Added(*control);
}

QAction* BarMirror::ActionOf(const HostControl& control) const {
    const auto found = shown_.find(&control);
    return found == shown_.end() ? nullptr : found->second.action;
}

std::vector<QAction*> BarMirror::ActionsOf(const HostBar& bar) const {
    std::vector<QAction*> actions;
    for (const auto& control : bar.controls->All()) {
        if (QAction* const action = ActionOf(*control)) actions.push_back(action);
    }
    return actions;
}

QWidget* BarMirror::WidgetOf(const HostControls* controls) const {
    const auto found = widgets_.find(controls);
    return found == widgets_.end() ? nullptr : found->second;
}

// What stands behind the control; null when it is the last one.
QAction* BarMirror::ActionAfter(const HostControl& control) const {
    const auto& siblings = control.Parent()->All();
    for (auto i = static_cast<std::size_t>(control.Index()); i < siblings.size(); ++i) {
        const auto found = shown_.find(siblings[i].get());
        if (found != shown_.end()) return found->second.separator;
    }
    return nullptr;
}

void BarMirror::Added(HostControl& control) {
    QWidget* const widget = WidgetOf(control.Parent());
    if (!widget || shown_.contains(&control)) return;
    Shown shown{new QAction(&window_), new QAction(&window_)};
    shown.separator->setSeparator(true);
    const auto self = control.shared_from_this();
    QObject::connect(shown.action, &QAction::triggered, shown.action, [self] { self->Click(); });
    QAction* const before = ActionAfter(control);
    widget->insertAction(before, shown.separator);
    widget->insertAction(before, shown.action);
    if (control.Controls()) {
        auto* const menu = new QMenu(&window_);
        menu->setToolTipsVisible(true);
        shown.action->setMenu(menu);
        widgets_[control.Controls().get()] = menu;
    }
    shown_[&control] = shown;
    Show(control, shown);
    if (control.Controls()) AddAll(*control.Controls());
}

void BarMirror::Removing(HostControl& control) {
    Forget(control);
}

void BarMirror::Forget(HostControl& control) {
    if (control.Controls()) {
        for (const auto& inner : control.Controls()->All())
            Forget(*inner);
        widgets_.erase(control.Controls().get());
    }
    const auto found = shown_.find(&control);
    if (found == shown_.end()) return;
    // The action may be the one whose click removes the control.
    if (QMenu* const menu = found->second.action->menu()) menu->deleteLater();
    for (QAction* const action : {found->second.action, found->second.separator}) {
        action->setVisible(false);
        action->deleteLater();
    }
    shown_.erase(found);
}

void BarMirror::Changed(HostControl& control) {
    const auto found = shown_.find(&control);
    if (found != shown_.end()) Show(control, found->second);
}

void BarMirror::Show(const HostControl& control, const Shown& shown) {
    const HostControlLook& look = control.Look();
    // A button with a picture alone is known by its tool tip.
    shown.action->setText(ToQt(look.caption.empty() ? look.tooltip : look.caption));
    if (control.Controls()) shown.action->menu()->setTitle(ToQt(look.caption));
    shown.action->setToolTip(PlainToolTip(ToQt(look.tooltip)));
    shown.action->setIcon(look.face.empty() ? QIcon() : IconOf(look.face));
    shown.action->setEnabled(look.isEnabled);
    shown.action->setVisible(look.isVisible);
    shown.separator->setVisible(look.beginsGroup && look.isVisible);
}

}  // namespace morpho
