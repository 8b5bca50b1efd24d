#include "windows_toolkit/windows_toolkit.h"

#include <objbase.h>
#include <ole2.h>

#include <algorithm>
#include <chrono>
#include <thread>

#include "windows_system/wide.h"
#include "windows_toolkit/dpi.h"
#include "windows_toolkit/file_dialog_box.h"
#include "windows_toolkit/form_window.h"
#include "windows_toolkit/web_browser_peer.h"
#include "windows_toolkit/window_picture.h"

// Needs the other ones before it.
#include <commctrl.h>

namespace morpho {

namespace {

// The flags of message boxes are the system's own.
static_assert(kYesNoCancel == MB_YESNOCANCEL && kYesNo == MB_YESNO &&
              kCriticalIcon == MB_ICONERROR && kQuestionIcon == MB_ICONQUESTION &&
              kInformationIcon == MB_ICONINFORMATION && kSecondButtonDefault == MB_DEFBUTTON2);
static_assert(static_cast<int>(Answer::kOk) == IDOK &&
              static_cast<int>(Answer::kCancel) == IDCANCEL &&
              static_cast<int>(Answer::kYes) == IDYES && static_cast<int>(Answer::kNo) == IDNO);

// How long a picture of a window waits for the pages in it, and between two looks at them.
constexpr auto kPatience = std::chrono::seconds(5);
constexpr auto kPause = std::chrono::milliseconds(20);

Answer AnswerWithoutBox(int flags) {
    switch (ButtonsOf(flags)) {
        case kYesNoCancel:
            return Answer::kCancel;
        case kYesNo:
            return Answer::kNo;
        default:
            return Answer::kOk;
    }
}

}  // namespace

WindowsToolkit::WindowsToolkit(std::function<HWND()> owner)
    : owner_(std::move(owner)), hasOle_(SUCCEEDED(OleInitialize(nullptr))) {}

WindowsToolkit::~WindowsToolkit() {
    if (hasOle_) OleUninitialize();
}

// A form may be loaded before it has a window.
void WindowsToolkit::PlaceAtStart(Form& form) {
    const DpiAwareness sharp;
    const FormWindow* const window = Find(&form);
    const int dpi = window != nullptr ? window->Dpi() : DpiOf(nullptr);
    form.SetChrome(FormWindow::Chrome(form, dpi));
    const HWND below = window != nullptr ? window->Owner() : TopWindow();
    RECT area{};
    if (form.Start() == StartPosition::kCenterOwner && below != nullptr && !IsIconic(below)) {
        GetWindowRect(below, &area);
    } else {
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    }
    const Rectangle middle = Centered(form.Bounds(), ToTwips(area, dpi));
    form.SetPosition(middle.left, middle.top);
}

void WindowsToolkit::RunModal(Form& form) {
    const DpiAwareness sharp;
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&classes);
    FormWindow window(form, TopWindow());
    windows_.push_back(&window);
    window.RunUntilHidden([&] {
        const auto stands = whenFormStands_;  // which may set another one
        if (stands) stands(form);
    });
    windows_.pop_back();
}

Answer WindowsToolkit::ShowMessage(Form* owner, std::string_view text, int flags,
                                   std::string_view title) {
    const DpiAwareness sharp;
    const HWND window = OwnerOfBox(owner);
    const UINT modal = window == nullptr ? MB_TASKMODAL | MB_SETFOREGROUND : 0;
    const int answer = MessageBoxW(window, Wide(text).c_str(), Wide(title).c_str(),
                                   static_cast<UINT>(flags) | modal);
    return answer == 0 ? AnswerWithoutBox(flags) : static_cast<Answer>(answer);
}

std::optional<std::string> WindowsToolkit::ShowFileDialog(Form* owner, const FileDialog& request) {
    const DpiAwareness sharp;
    return RunFileDialog(OwnerOfBox(owner), request);
}

Rectangle WindowsToolkit::NormalPlacement(const Form& form) const {
    const FormWindow* const window = Find(&form);
    return window != nullptr ? window->NormalPlacement() : form.Bounds();
}

CapturedWindow WindowsToolkit::ReleaseCapture() {
    const HWND holder = ::GetCapture();
    if (holder != nullptr) ::ReleaseCapture();
    return holder;
}

void WindowsToolkit::SetCapture(CapturedWindow window) {
    // The window may have gone meanwhile.
    const auto holder = static_cast<HWND>(window);
    if (holder != nullptr && IsWindow(holder) && IsWindowVisible(holder)) ::SetCapture(holder);
}

void WindowsToolkit::HandleWaiting() {
    if (!windows_.empty()) windows_.back()->HandleWaiting();
}

std::string WindowsToolkit::PictureOf(const Form& form) {
    FormWindow* const window = Find(&form);
    if (window == nullptr || window->Window() == nullptr) return {};
    const auto giveUp = std::chrono::steady_clock::now() + kPatience;
    do {
        window->HandleWaiting();
        std::this_thread::sleep_for(kPause);
    } while (IsPageLoading(window->Window()) && std::chrono::steady_clock::now() < giveUp);
    window->HandleWaiting();
    UpdateWindow(window->Window());
    return PictureOfWindow(window->Window());
}

HWND WindowsToolkit::WindowOf(const Form& form) const {
    const FormWindow* const window = Find(&form);
    return window != nullptr ? window->Window() : nullptr;
}

FormWindow* WindowsToolkit::Find(const Form* form) const {
    const auto found =
        std::find_if(windows_.rbegin(), windows_.rend(),
                     [&](const FormWindow* window) { return &window->Model() == form; });
    return found == windows_.rend() ? nullptr : *found;
}

HWND WindowsToolkit::TopWindow() const {
    const auto found =
        std::find_if(windows_.rbegin(), windows_.rend(), [](const FormWindow* window) {
            return window->Window() != nullptr && IsWindowVisible(window->Window());
        });
    if (found != windows_.rend()) return (*found)->Window();
    return owner_ ? owner_() : nullptr;
}

HWND WindowsToolkit::OwnerOfBox(const Form* owner) const {
    const HWND window = owner != nullptr ? WindowOf(*owner) : nullptr;
    return window != nullptr && IsWindowVisible(window) ? window : TopWindow();
}

}  // namespace morpho
