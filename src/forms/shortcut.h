#pragma once

#include <string>

namespace morpho {

// A key that presses a button from anywhere in the form.
struct Shortcut {
    enum class Modifier { kNone, kControl };

    Modifier modifier = Modifier::kNone;
    // An upper-case letter of ASCII, or a function key; 0: no shortcut.
    int key = 0;

    bool IsNone() const { return key == 0; }
    bool IsFunctionKey() const { return key > kF0; }
    // The number of the function key, from 1.
    int FunctionNumber() const { return key - kF0; }
    // The shortcut's name in a tool tip, such as "Ctrl+Z" or "F1"; empty for none.
    std::string Text() const {
        if (IsNone()) return {};
        const std::string name = IsFunctionKey() ? "F" + std::to_string(FunctionNumber())
                                                 : std::string(1, static_cast<char>(key));
        return modifier == Modifier::kControl ? "Ctrl+" + name : name;
    }

    bool operator==(const Shortcut&) const = default;

    static constexpr int kF0 = 0x100;  // function key n is kF0 + n
};

constexpr Shortcut Ctrl(char letter) {
    return {Shortcut::Modifier::kControl, letter};
}

constexpr Shortcut FunctionKey(int number) {
    return {Shortcut::Modifier::kNone, Shortcut::kF0 + number};
}

}  // namespace morpho
