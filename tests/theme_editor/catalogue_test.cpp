#include "theme_editor/catalogue.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace morpho::test {
namespace {

TEST(Catalogue, HasEachElementOnceInThreeGroupsWithASheetEach) {
    std::set<std::string_view> keys;
    std::map<std::string_view, int> groups;
    std::map<std::string_view, int> hovered;
    for (const CatalogueElement& element : kCatalogue) {
        keys.insert(element.key);
        ++groups[element.key.substr(0, 7)];
        if (element.Attribute().ends_with("-hovered")) ++hovered[element.styleSheet];
        EXPECT_EQ(element.selector == "body", element.Attribute() == "background-image");
    }
    EXPECT_EQ(keys.size(), 38U);
    EXPECT_EQ(groups,
              (std::map<std::string_view, int>{{"active/", 23}, {"normal/", 13}, {"global/", 2}}));
    EXPECT_EQ(hovered, (std::map<std::string_view, int>{{"\\graph1.css", 6}}))
        << "only active buttons are hovered";
}

}  // namespace
}  // namespace morpho::test
