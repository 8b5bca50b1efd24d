#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "forms/form.h"

namespace morpho::test {

// A dialog is laid out well when every control lies within the window, none covers another, and no
// two visible controls share an access key, which must occur in a caption.
inline void ExpectWellLaidOut(Form& form) {
    std::map<char, std::string> keys;
    const auto& controls = form.Controls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const Control& control = *controls[i];
        const Rectangle& place = control.Place();
        EXPECT_GE(place.left, 0) << control.Name();
        EXPECT_GE(place.top, 0) << control.Name();
        EXPECT_LE(place.left + place.width, form.Inner().width) << control.Name();
        EXPECT_LE(place.top + place.height, form.Inner().height) << control.Name();
        for (std::size_t j = 0; j < i; ++j) {
            const Rectangle& other = controls[j]->Place();
            const bool apart =
                other.left + other.width <= place.left || place.left + place.width <= other.left ||
                other.top + other.height <= place.top || place.top + place.height <= other.top;
            EXPECT_TRUE(apart) << control.Name() << " covers " << controls[j]->Name();
        }
        if (control.AccessKey() == 0) continue;
        EXPECT_NE(control.Caption().find(control.AccessKey()), std::string::npos) << control.Name();
        EXPECT_TRUE(keys.emplace(control.AccessKey(), control.Name()).second)
            << control.Name() << " and " << keys[control.AccessKey()];
    }
}

}  // namespace morpho::test
