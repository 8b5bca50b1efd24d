#pragma once

#include "forms/controls.h"
#include "windows_system/win32.h"

namespace morpho {

class TimerPeer : public Peer {
  public:
    // The clock belongs to this window.
    TimerPeer(Timer& timer, HWND window) : timer_(timer), window_(window) {}
    ~TimerPeer() override;
    TimerPeer(const TimerPeer&) = delete;
    TimerPeer& operator=(const TimerPeer&) = delete;

  protected:
    void Write(Aspects changed) override;

  private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR id, DWORD);
    UINT_PTR Id() const { return reinterpret_cast<UINT_PTR>(this); }

    Timer& timer_;
    HWND window_;
};

}  // namespace morpho
