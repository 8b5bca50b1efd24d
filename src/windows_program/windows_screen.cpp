#include "windows_program/windows_screen.h"

namespace morpho {

namespace {

[[noreturn]] void RefuseWindow() {
    throw Refusal("Windows cannot be opened yet.");
}

}  // namespace

void WindowsScreen::ShowWeb(const WebRequest& /*request*/) {
    RefuseWindow();
}

void WindowsScreen::ShowTheme(const ThemeRequest& /*request*/) {
    RefuseWindow();
}

void WindowsScreen::ShowImage(const ImageRequest& /*request*/) {
    RefuseWindow();
}

void WindowsScreen::Draw(Form& /*form*/, const std::filesystem::path& /*picture*/) {
    RefuseWindow();
}

}  // namespace morpho
