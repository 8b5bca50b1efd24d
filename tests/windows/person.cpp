#include "windows/person.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "windows_system/wide.h"
// After <windows.h>.
#include <commctrl.h>

namespace morpho::test {

namespace {

constexpr UINT kTickMilliseconds = 20;
constexpr int kPatience = 60 * 50;  // ticks

Person* s_person = nullptr;

std::wstring CaptionOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    text.pop_back();
    std::erase(text, L'&');
    return text;
}

std::wstring KindOf(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

int TopOf(HWND window) {
    RECT place;
    GetWindowRect(window, &place);
    return place.top;
}

BOOL CALLBACK AddTo(HWND window, LPARAM list) {
    if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

// The enabled button in the window that takes input.
HWND ReadyButton(const std::wstring& caption, HWND& owner) {
    for (const HWND window : ShownWindows()) {
        const HWND button = FindControl(window, WC_BUTTONW, caption);
        if (button == nullptr || !IsWindowEnabled(window) || !IsWindowEnabled(button)) continue;
        owner = window;
        return button;
    }
    return nullptr;
}

void TellParent(HWND control, UINT message, WPARAM wide) {
    SendMessageW(GetParent(control), message, wide, reinterpret_cast<LPARAM>(control));
}

}  // namespace

Person::Person() : timer_(SetTimer(nullptr, 0, kTickMilliseconds, &Person::Tick)) {
    s_person = this;
}

Person::~Person() {
    KillTimer(nullptr, timer_);
    s_person = nullptr;
    for (const Step& step : steps_)
        ADD_FAILURE() << "Nothing was done at the button " << Narrow(step.button);
}

Person& Person::At(const std::wstring& button, std::function<void(HWND)> act) {
    steps_.push_back({button, std::move(act)});
    return *this;
}

Person& Person::Press(const std::wstring& button) {
    return At(button, [button](HWND window) {
        PostMessageW(FindControl(window, WC_BUTTONW, button), BM_CLICK, 0, 0);
    });
}

Person& Person::AlwaysPress(const std::wstring& button) {
    always_.insert(button);
    return *this;
}

void CALLBACK Person::Tick(HWND, UINT, UINT_PTR, DWORD) {
    if (s_person != nullptr) s_person->Act();
}

void Person::Act() {
    if (++waited_ > kPatience) return GiveUp();
    HWND window = nullptr;
    for (const std::wstring& caption : always_) {
        if (const HWND button = ReadyButton(caption, window)) {
            PostMessageW(button, BM_CLICK, 0, 0);
            return;
        }
    }
    if (steps_.empty() || ReadyButton(steps_.front().button, window) == nullptr) return;
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    waited_ = 0;
    step.act(window);
}

void Person::GiveUp() {
    if (waited_ > 2 * kPatience) std::abort();
    if (waited_ % 50 != 1) return;
    for (const HWND window : ShownWindows()) {
        ADD_FAILURE() << "In the way: " << Narrow(CaptionOf(window));
        for (const HWND text : ControlsOf(window, WC_STATICW))
            ADD_FAILURE() << Narrow(CaptionOf(text));
        if (IsWindowEnabled(window)) PostMessageW(window, WM_CLOSE, 0, 0);
    }
}

std::vector<HWND> ShownWindows() {
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), AddTo, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::vector<HWND> ControlsOf(HWND window, const std::wstring& kind) {
    std::vector<HWND> controls;
    EnumChildWindows(window, AddTo, reinterpret_cast<LPARAM>(&controls));
    std::erase_if(controls, [&](HWND control) { return KindOf(control) != kind; });
    std::stable_sort(controls.begin(), controls.end(),
                     [](HWND one, HWND other) { return TopOf(one) < TopOf(other); });
    return controls;
}

HWND FindControl(HWND window, const std::wstring& kind, const std::wstring& caption) {
    for (const HWND control : ControlsOf(window, kind)) {
        if (CaptionOf(control) == caption) return control;
    }
    return nullptr;
}

void Slide(HWND slider, int position) {
    SendMessageW(slider, TBM_SETPOS, TRUE, position);
    for (const int code : {TB_THUMBTRACK, TB_THUMBPOSITION})
        TellParent(slider, WM_HSCROLL, MAKEWPARAM(code, position));
}

void Pick(HWND comboBox, int index) {
    SendMessageW(comboBox, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    TellParent(comboBox, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(comboBox), CBN_SELCHANGE));
}

void SetTick(HWND list, int row, bool ticked) {
    LVITEMW state = {};
    state.stateMask = LVIS_STATEIMAGEMASK;
    state.state = static_cast<UINT>(INDEXTOSTATEIMAGEMASK(ticked ? 2 : 1));
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&state));
}

}  // namespace morpho::test
