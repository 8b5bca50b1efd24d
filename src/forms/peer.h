#pragma once

#include <cstdint>
#include <utility>

namespace morpho {

// What of a control or form changed, as bits.
using Aspects = std::uint32_t;
namespace aspect {
inline constexpr Aspects kPlace = 1;    // place, or a form's outer rectangle
inline constexpr Aspects kCaption = 2;  // caption, tool tip
inline constexpr Aspects kEnabled = 4;
inline constexpr Aspects kVisible = 8;
inline constexpr Aspects kValue = 16;  // value, text, checked states, list index, top index
inline constexpr Aspects kItems = 32;  // a list's entries
inline constexpr Aspects kPicture = 64;
inline constexpr Aspects kPointer = 128;  // a form's mouse pointer
inline constexpr Aspects kWindowState = 256;
inline constexpr Aspects kAll = 0xffff;  // the whole state, on attaching
// Requests, not state: never part of kAll.
inline constexpr Aspects kRepaint = 0x10000;  // paint now, without waiting for the event loop
inline constexpr Aspects kFocus = 0x20000;
inline constexpr Aspects kNavigate = 0x40000;
inline constexpr Aspects kReload = 0x80000;
inline constexpr Aspects kReloadCompletely = 0x100000;
inline constexpr Aspects kToTop = 0x200000;
}  // namespace aspect

// The mirror of one control in a toolkit. It writes model to widget and reports what the person
// did, nothing more. A peer is attached with Control::Attach, gets the whole state at once, and
// must be detached before it dies.
class Peer {
  public:
    virtual ~Peer() = default;

    // The control's way to its peer.
    void Show(Aspects changed) {
        const bool outer = std::exchange(writing_, true);
        Write(changed);
        writing_ = outer;
    }

  protected:
    // Brings the widget to the model's state in these aspects.
    virtual void Write(Aspects changed) = 0;

    // Runs `report` unless the native signal is only the echo of this peer's own writing.
    template <typename Function>
    void Report(Function&& report) {
        if (!writing_) std::forward<Function>(report)();
    }

  private:
    bool writing_ = false;
};

}  // namespace morpho
