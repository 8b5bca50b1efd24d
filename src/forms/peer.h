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
inline constexpr Aspects kAddress =
    512;  // the page that a browser was sent to, the same one again too
inline constexpr Aspects kAll = 0xffff;  // the whole state, on attaching
// Requests, not state: never part of kAll.
inline constexpr Aspects kRepaint = 0x10000;  // paint now, without waiting for the event loop
inline constexpr Aspects kFocus = 0x20000;
inline constexpr Aspects kSelectAll = 0x40000;  // a text box's text
inline constexpr Aspects kReload = 0x80000;
inline constexpr Aspects kReloadCompletely = 0x100000;
inline constexpr Aspects kToTop = 0x200000;
}  // namespace aspect

// The mirror of one control in a toolkit. It writes model to widget and reports what the person
// did, nothing more. A peer is attached with Control::Attach, gets the whole state at once, and
// must be detached before it dies. Of two controls of a container that overlap, the widget of the
// one declared later stands above: a picture box and a browser share one place.
class Peer {
  public:
    virtual ~Peer() = default;

    // The control's way to its peer.
    void Show(Aspects changed) {
        const Writing writing(writing_);
        Write(changed);
    }

  protected:
    // Brings the widget to the model's state in these aspects.
    virtual void Write(Aspects changed) = 0;

    // Runs `report` unless the native signal is only the echo of this peer's own writing.
    template <typename Function>
    void Report(Function&& report) {
        if (!writing_) std::forward<Function>(report)();
    }

    // Reports what the person did with the control, unless it is an echo, and then shows the
    // model's value: the model may have refused what was done, or changed it.
    template <typename Function>
    void Did(Function&& report) {
        Report([&] {
            BeforeReport();
            report();
            Show(aspect::kValue);
        });
    }
    // What has to reach the model before anything else that the person does.
    virtual void BeforeReport() {}

  private:
    // Ends the writing also when it fails.
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
