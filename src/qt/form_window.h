#pragma once

#include <QDialog>
#include <QEventLoop>
#include <functional>
#include <memory>
#include <vector>

#include "forms/form.h"
#include "qt/control_peer.h"
#include "qt/timed_settling.h"

namespace morpho {

// The window of a form, with the peers of all its controls. Lives as long as the form is shown.
class FormWindow : public QDialog, public Peer {
  public:
    // `owner` is the window that a fixed dialog stands on; null: none. All must outlive the window.
    FormWindow(Form& form, QWidget* owner, PageServer& pages);
    ~FormWindow() override;
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;

    // Loads and shows the form and returns once it is hidden or unloaded. `stands` is called when
    // the form is on the screen and its first Form_Paint is over.
    void RunUntilHidden(const std::function<void()>& stands);

    const Form& Model() const { return form_; }
    // Outer less inner size, in twips, as far as it is known.
    Size Chrome() const;
    // The outer rectangle, in twips, while neither minimised nor maximised.
    Rectangle NormalPlacement() const;

    // Escape.
    void reject() override;

  protected:
    void Write(Aspects changed) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    bool IsSizable() const { return form_.Border() == BorderStyle::kSizable; }
    QSize InnerPixels() const;
    void WritePlace();
    QRect PlaceOnScreen() const;
    void WriteOuterSize();
    void FirstPainted();
    void FocusChanged(QWidget* now);
    void GeometryChanged();
    void ReportGeometry();

    Form& form_;
    TimedSettling settling_;
    std::vector<std::unique_ptr<Peer>> peers_;
    QMetaObject::Connection focusConnection_;
    QEventLoop loop_;
    std::function<void()> stands_;
    bool painted_ = false;  // the first paint is over: what happens now is reported
    bool reportQueued_ = false;
    // Outer less inner size, in pixels, outside of the maximised state; 0 as long as it is not
    // known.
    QSize lastNormalChrome_{0, 0};
};

}  // namespace morpho
