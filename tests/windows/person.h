#pragma once

#include <deque>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "windows_system/win32.h"

namespace morpho::test {

// A person at the windows of this thread, who acts whenever messages are pumped, through the
// messages that mouse and keyboard cause. One at a time.
class Person {
  public:
    Person();
    // All steps must be done by then.
    ~Person();
    Person(const Person&) = delete;
    Person& operator=(const Person&) = delete;

    // One step after the other; each waits until a window that takes input has an enabled button of
    // this caption, without "&". `act` gets the window and must not wait for others.
    Person& At(const std::wstring& button, std::function<void(HWND window)> act);
    Person& Press(const std::wstring& button);
    // Presses every button of this caption that comes up meanwhile.
    Person& AlwaysPress(const std::wstring& button);

  private:
    struct Step {
        std::wstring button;
        std::function<void(HWND)> act;
    };
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);
    void Act();
    // Closes what stands in the way, so that the test ends.
    void GiveUp();

    std::set<std::wstring> always_;
    std::deque<Step> steps_;
    UINT_PTR timer_;
    int waited_ = 0;  // ticks since the last step
};

// The windows of this thread that are on the screen.
std::vector<HWND> ShownWindows();
// The shown controls of this window class, also those inside others, from the top of the screen
// down.
std::vector<HWND> ControlsOf(HWND window, const std::wstring& kind);
// The shown control of this caption, without "&"; null when there is none.
HWND FindControl(HWND window, const std::wstring& kind, const std::wstring& caption);

// Drags a slider to a position and lets it go.
void Slide(HWND slider, int position);
// Picks an entry of a list that drops down.
void Pick(HWND comboBox, int index);
// Sets the tick of a row.
void SetTick(HWND list, int row, bool ticked);

}  // namespace morpho::test
