#include "shared/settings.h"

#include <gtest/gtest.h>

#include "support/fake_platform.h"

namespace morpho::test {

namespace {

constexpr const char* kKey = "Software\\VB and VBA Program Settings\\Theme Morpho\\Window";

}  // namespace

TEST(SettingsTest, KeepsTextsWhereClassicBasicProgramsDo) {
    FakePlatform world;
    EXPECT_EQ(GetSetting(world.platform, "Theme Morpho", "Window", "Splash", "1"), "1");
    EXPECT_TRUE(SaveSetting(world.platform, "Theme Morpho", "Window", "Splash", "0"));
    EXPECT_TRUE(SaveSetting(world.platform, "Theme Morpho", "Window", "Empty", ""));

    EXPECT_EQ(world.registry.Text(kCurrentUser, kKey, "Splash"), "0");
    EXPECT_EQ(GetSetting(world.platform, "theme morpho", "window", "splash", "1"), "0");
    EXPECT_EQ(GetSetting(world.platform, "Theme Morpho", "Window", "Empty", "1"), "");
    EXPECT_EQ(GetSetting(world.platform, "Image Morpho", "Window", "Splash", "1"), "1");
    EXPECT_TRUE(DeleteSetting(world.platform, "Theme Morpho", "Window", "Splash"));
    EXPECT_EQ(GetSetting(world.platform, "Theme Morpho", "Window", "Splash", "1"), "1");
    EXPECT_FALSE(DeleteSetting(world.platform, "Theme Morpho", "Window", "Splash"));
    EXPECT_EQ(world.registry.OpenKeys(), 0);
}

TEST(SettingsTest, ReadsNumbersFromWhateverIsThere) {
    FakePlatform world;
    const struct {
        const char* text;
        int number;
    } cases[] = {
        {"-15", -15}, {"11820 twips", 11820}, {"x", 0},        {"1 234", 1234}, {"2.5", 2},
        {"3.5", 4},   {"1e3", 1000},          {"inf", 0},      {"+7", 7},       {"-.9", -1},
        {"&H10", 0},  {"2147483648", 42},     {"- 12 px", -12}};
    for (const auto& one : cases) {
        world.registry.PutString(kCurrentUser, kKey, "Left", one.text);
        EXPECT_EQ(GetSettingNumber(world.platform, "Theme Morpho", "Window", "Left", 42),
                  one.number)
            << one.text;
    }
    EXPECT_EQ(GetSettingNumber(world.platform, "Theme Morpho", "Window", "Top", 42), 42);
}

TEST(SettingsTest, ASettingThatCannotBeKeptIsLostQuietly) {
    FakePlatform world;
    world.registry.FailWrites(kRegAccessDenied);
    EXPECT_FALSE(SaveSetting(world.platform, "Theme Morpho", "Window", "State", "0"));
    EXPECT_EQ(GetSetting(world.platform, "Theme Morpho", "Window", "State", "2"), "2");
}

}  // namespace morpho::test
