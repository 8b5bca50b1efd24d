#include "theme_editor/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace morpho::test {

namespace {

auto CountIf(auto condition) {
    return std::count_if(kCatalogue.begin(), kCatalogue.end(), condition);
}

TEST(Catalogue, HasItsElementsOnceInThreeGroupsWithASheetEach) {
    std::set<std::string_view> keys;
    for (const CatalogueElement& element : kCatalogue) {
        const bool active = element.key.starts_with("active/");
        const bool normal = element.key.starts_with("normal/");
        EXPECT_TRUE(active || normal || element.key.starts_with("global/")) << element.key;
        EXPECT_EQ(element.styleSheet, active   ? "\\graph1.css"
                                      : normal ? "\\graph0.css"
                                               : "\\theme.css");
        EXPECT_EQ(element.selector, element.key == "global/background-image" ? "body" : ".mstheme");
        keys.insert(element.key);
    }
    EXPECT_EQ(keys.size(), 38U);
    EXPECT_EQ(CountIf([](const auto& e) { return e.key.starts_with("active/"); }), 23);
    EXPECT_EQ(CountIf([](const auto& e) { return e.key.starts_with("normal/"); }), 13);
}

TEST(Catalogue, KnowsHoveredStatesOfActiveButtonsOnly) {
    const auto hovered = [](const auto& e) { return e.key.ends_with("-hovered"); };
    EXPECT_EQ(CountIf(hovered), 6);
    EXPECT_EQ(CountIf([&](const auto& e) { return hovered(e) && e.key.starts_with("active/"); }),
              6);
    EXPECT_EQ(CountIf([](const auto& e) {
                  return e.key.ends_with("-pushed") && e.key.starts_with("normal/");
              }),
              2);
}

TEST(Catalogue, TakesTheAttributeFromTheKey) {
    EXPECT_EQ(kCatalogue.front().Attribute(), "nav-banner-image");
    EXPECT_EQ(kCatalogue.back().Attribute(), "background-image");
}

}  // namespace

}  // namespace morpho::test
