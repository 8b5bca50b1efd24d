#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <set>

#include "program.h"

namespace {

using nlohmann::json;

// The key's place in the order in which elements are listed: active, normal, global.
int GroupOrder(const std::string& key) {
    return key.starts_with("active/") ? 0 : key.starts_with("normal/") ? 1 : 2;
}

TEST(ListCommand, NamesEveryElementInCatalogueOrderWithGroupsInOrderOfAppearance) {
    const Home home;
    const Outcome outcome = home.Run("list WEB --json");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    const json themes = json::parse(outcome.out);
    ASSERT_EQ(themes.size(), 2u);
    EXPECT_EQ(themes[0]["name"], "almanac");
    EXPECT_EQ(themes[0]["label"], "Old Almanac");
    EXPECT_EQ(themes[1]["name"], "orrery");
    EXPECT_EQ(themes[0]["elements"].size(), 31u);
    EXPECT_EQ(themes[1]["elements"].size(), 38u);
    for (const json& theme : themes) {
        std::map<std::string, int> groupOfFile;
        int order = 0;
        for (const json& element : theme["elements"]) {
            EXPECT_GE(GroupOrder(element["key"]), order);
            order = GroupOrder(element["key"]);
            const auto group =
                groupOfFile.emplace(element["file"], static_cast<int>(groupOfFile.size()) + 1);
            EXPECT_EQ(element["group"], group.first->second) << element["key"];
        }
    }
    EXPECT_EQ(themes[1]["elements"][0]["key"], "active/nav-banner-image");
    EXPECT_EQ(themes[1]["elements"][37]["key"], "global/background-image");
}

TEST(ListCommand, PrintsThemesOrOneThemesElementsAsText) {
    const Home home;
    const Outcome themes = home.Run("list WEB");
    EXPECT_EQ(themes.status, 0);
    EXPECT_NE(themes.out.find("orrery"), std::string::npos);
    EXPECT_NE(themes.out.find("Old Almanac"), std::string::npos);
    const Outcome elements = home.Run("list WEB --theme orrery");
    EXPECT_EQ(elements.status, 0);
    EXPECT_NE(elements.out.find("global/background-image"), std::string::npos);
    EXPECT_EQ(home.Run("list WEB --theme ORRERY --json").status, 0)
        << "names are found without regard to case";
}

TEST(ListCommand, LeavesNothingBehindAndTheWebAlone) {
    const Home home;
    const Tree before = ReadTree(home.Web());
    ASSERT_EQ(home.Run("list WEB --json").status, 0);
    EXPECT_EQ(ReadTree(home.Web()), before);
    const std::filesystem::path cache = home.Path("cache/morpho");
    EXPECT_TRUE(!std::filesystem::exists(cache) || std::filesystem::is_empty(cache));
}

TEST(ListCommand, AWebWithoutThemesHasNone) {
    const Home home;
    std::filesystem::remove_all(home.Web() / "_themes");
    const Outcome outcome = home.Run("list WEB --json");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(json::parse(outcome.out), json::array());
    EXPECT_EQ(home.Run("recolor WEB --theme orrery --apply --export OUT").status, 1);
}

}  // namespace
