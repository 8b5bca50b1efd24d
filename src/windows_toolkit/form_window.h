#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "forms/form.h"
#include "windows_toolkit/control_peer.h"
#include "windows_toolkit/timed_settling.h"

namespace morpho {

// The window of a form, with the peers of all its controls. Lives as long as the form is shown.
class FormWindow : public Peer {
  public:
    // `owner` is the window that the form stands on, disabled as long as the form is shown; null:
    // none.
    FormWindow(Form& form, HWND owner);
    ~FormWindow() override;
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;

    // Loads and shows the form and returns once it is hidden or unloaded. `stands` is called when
    // the form is on the screen and its first Form_Paint is over.
    void RunUntilHidden(const std::function<void()>& stands);

    // Handles the messages that wait.
    void HandleWaiting();

    const Form& Model() const { return form_; }
    HWND Window() const { return window_; }
    HWND Owner() const { return owner_; }
    // Outer less inner size of a form's window, in twips.
    static Size Chrome(const Form& form, int dpi);
    // The outer rectangle, in twips, while neither minimised nor maximised.
    Rectangle NormalPlacement() const;
    int Dpi() const { return dpi_; }

  protected:
    void Write(Aspects changed) override;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM low);
    // Nothing: the message is left to the system.
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wide, LPARAM low);
    std::optional<LRESULT> OnOwnMessage(UINT message);
    void RunMessages();
    void Dispatch(MSG& message);

    void MakePeers();
    void RemovePeers();
    void DpiChanged(int dpi, const RECT& suggested);
    RECT PlaceOnScreen() const;
    void WritePlace();
    void FirstPainted();
    void GeometryChanged();
    void ReportGeometry();
    void GiveFocus();
    void KeepFocus();
    void Gone();

    Form& form_;
    HWND owner_;
    HWND window_;
    int dpi_;
    HFONT font_ = nullptr;
    HWND toolTips_ = nullptr;
    std::unique_ptr<TimedSettling> settling_;
    std::vector<std::unique_ptr<Peer>> peers_;
    std::function<void()> stands_;
    bool painted_ = false;  // the first paint is over: what happens now is reported
    bool ownerEnabled_ = false;
};

}  // namespace morpho
