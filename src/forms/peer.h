#pragma once

#include <cstdint>
#include <utility>

namespace morpho {

// The parts of a control's or form's state that changed, as bits.
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
inline constexpr Aspects kAddress = 512;  // a browser navigates, perhaps to the same page again
inline constexpr Aspects kAll = 0xffff;   // the whole state, on attaching
// Requests, not state: never part of kAll.
inline constexpr Aspects kRepaint = 0x10000;  // paint now, without waiting for the event loop
inline constexpr Aspects kFocus = 0x20000;
inline constexpr Aspects kSelectAll = 0x40000;  // a text box's text
inline constexpr Aspects kReload = 0x80000;
inline constexpr Aspects kReloadCompletely = 0x100000;
inline constexpr Aspects kToTop = 0x200000;
}  // namespace aspect

// The mirror of one control in a toolkit. It writes the model's state to the widget and reports
// user input, nothing more. Control::Attach attaches it and makes it show the whole state; it must
// be detached before it is destroyed. Where two controls of a container overlap, the widget of the
// one declared later is on top: a picture box and a browser share one place.
class Peer {
  public:
    virtual ~Peer() = default;

    // Called by the control when its state has changed.
    void Show(Aspects changed) {
        const Writing writing(writing_);
        Write(changed);
    }

  protected:
    // Updates the widget from the model in these aspects.
    virtual void Write(Aspects changed) = 0;

    // Runs `report` unless the native signal is only the echo of this peer's own writing.
    template <typename Function>
    void Report(Function&& report) {
        if (!writing_) std::forward<Function>(report)();
    }

    // Reports user input, unless it is an echo, and then shows the model's value: the model may
    // have refused or changed the input.
    template <typename Function>
    void Did(Function&& report) {
        Report([&] {
            BeforeReport();
            report();
            Show(aspect::kValue);
        });
    }
    // Reports earlier input that is still waiting and must reach the model first.
    virtual void BeforeReport() {}

  private:
    // Restores the flag also when Write throws.
    class Writing {
      public:
        explicit Writing(bool& writing) : writing_(writing), outer_(std::exchange(writing, true)) {}
        ~Writing() { writing_ = outer_; }
        Writing(const Writing&) = delete;
        Writing& operator=(const Writing&) = delete;

      private:
        bool& writing_;
        bool outer_;
    };

    bool writing_ = false;
};

}  // namespace morpho
