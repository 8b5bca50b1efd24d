#pragma once

#include <QMainWindow>
#include <map>
#include <vector>

#include "web_host/host_command_bars.h"

class QAction;
class QToolBar;

namespace morpho {

// Shows the host's bars in a window: its menu bar as menus, each other bar as a toolbar.
class BarMirror final : public CommandBarsObserver {
  public:
    // Both must outlive it.
    BarMirror(HostCommandBars& bars, QMainWindow& window);
    ~BarMirror() override;
    BarMirror(const BarMirror&) = delete;
    BarMirror& operator=(const BarMirror&) = delete;

    // The action that shows a control; null when there is none.
    QAction* ActionOf(const HostControl& control) const;
    // What stands on a bar's toolbar, for a menu.
    std::vector<QAction*> ActionsOf(const HostBar& bar) const;

    void Added(HostControl& control) override;
    void Removing(HostControl& control) override;
    void Changed(HostControl& control) override;

  private:
    struct Shown {
        QAction* action = nullptr;
        QAction* separator = nullptr;
    };

    void AddBar(const HostBar& bar);
    void AddAll(const HostControls& controls);
    QWidget* WidgetOf(const HostControls* controls) const;
    QAction* ActionAfter(const HostControl& control) const;
    void Show(const HostControl& control, const Shown& shown);
    void Forget(HostControl& control);

    HostCommandBars& bars_;
    QMainWindow& window_;
    std::map<const HostControls*, QWidget*> widgets_;  // menu bar, menus and toolbars
    std::map<const HostControl*, Shown> shown_;
};

}  // namespace morpho
