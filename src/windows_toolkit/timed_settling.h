#pragma once

#include "forms/settling.h"
#include "windows_system/win32.h"

namespace morpho {

class TimedSettling : public Settling {
  public:
    // The timer belongs to this window. The thread's message loop runs it.
    explicit TimedSettling(HWND window) : window_(window) {}
    ~TimedSettling() override { StopTimer(); }

  protected:
    void StartPause() override {
        SetTimer(window_, TimerId(), kPauseMilliseconds, &TimedSettling::PauseIsOver);
    }
    void EndPause() override { StopTimer(); }

  private:
    UINT_PTR TimerId() const { return reinterpret_cast<UINT_PTR>(this); }
    void StopTimer() { KillTimer(window_, TimerId()); }

    static void CALLBACK PauseIsOver(HWND, UINT, UINT_PTR id, DWORD) {
        auto* const settling = reinterpret_cast<TimedSettling*>(id);
        settling->StopTimer();
        settling->Flush();
    }

    HWND window_;
};

}  // namespace morpho
