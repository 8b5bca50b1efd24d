#include "shared/settings.h"

#include <gtest/gtest.h>

#include "support/fake_platform.h"

namespace morpho::test {
namespace {

constexpr const char* kKey = "Software\\VB and VBA Program Settings\\Theme Morpho\\Window";

struct Settings : testing::Test {
    FakePlatform world;

    bool Save(const char* key, const char* value) {
        return SaveSetting(world.platform, "Theme Morpho", "Window", key, value);
    }
    std::string Get(const char* application, const char* key) {
        return GetSetting(world.platform, application, "Window", key, "fallback");
    }
};

TEST_F(Settings, StandWhereClassicBasicProgramsKeepThem) {
    EXPECT_TRUE(Save("Splash", "0") && Save("Empty", ""));
    EXPECT_EQ(world.registry.UserText(kKey, "Splash"), "0");
    EXPECT_EQ(Get("theme morpho", "splash"), "0");
    EXPECT_EQ(Get("Theme Morpho", "Empty"), "");
    EXPECT_EQ(Get("Image Morpho", "Splash"), "fallback");
    EXPECT_TRUE(DeleteSetting(world.platform, "Theme Morpho", "Window", "Splash"));
    EXPECT_FALSE(DeleteSetting(world.platform, "Theme Morpho", "Window", "Splash"));
    EXPECT_EQ(Get("Theme Morpho", "Splash"), "fallback");
    world.registry.writeError = kRegAccessDenied;
    EXPECT_FALSE(Save("Empty", "x"));
    EXPECT_EQ(world.registry.openKeys, 0);
}

TEST_F(Settings, AreNumbersHoweverTheyAreWritten) {
    const auto number = [&](const char* text) {
        Save("Left", text);
        return GetSettingNumber(world.platform, "Theme Morpho", "Window", "Left", 42);
    };
    const std::pair<const char*, int> cases[] = {
        {"-15", -15}, {"11820 twips", 11820}, {"x", 0},        {"1 234", 1234}, {"2.5", 2},
        {"3.5", 4},   {"1e3", 1000},          {"inf", 0},      {"+7", 7},       {"-.9", -1},
        {"&H10", 0},  {"2147483648", 42},     {"- 12 px", -12}};
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(number(text), expected) << text;
    EXPECT_EQ(GetSettingNumber(world.platform, "Theme Morpho", "Window", "Top", 42), 42);
}

}  // namespace
}  // namespace morpho::test
