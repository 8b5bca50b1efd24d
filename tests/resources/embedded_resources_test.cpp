#include "resources/embedded_resources.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "resources/resource_ids.h"

namespace morpho {
namespace {

std::string Bytes(std::string_view type, int id) {
    const auto data = EmbeddedResources().Data(type, id);
    return {reinterpret_cast<const char*>(data.data()), data.size()};
}

TEST(PreviewTemplate, KeepsItsSizeAndCrossesTheActiveHorizontalBarsHoveredAndPushed) {
    const std::string page = Bytes(kTemplateResource, kPreviewTemplate);
    EXPECT_EQ(page.size(), 8268u);
    EXPECT_EQ(page.find('\0'), 8265u);
    const size_t bar = page.find("Horizontal Nav. Bar");
    const size_t hovered = page.find(">Hovered<", bar);
    const size_t pushed = page.find(">Pushed<", bar);
    const size_t pushedPicture = page.find("#active/navbutton-horiz-pushed#");
    const size_t hoveredPicture = page.find("#active/navbutton-horiz-hovered#");
    EXPECT_LT(hovered, pushed);
    EXPECT_LT(pushed, pushedPicture);
    EXPECT_LT(pushedPicture, hoveredPicture);
    EXPECT_LT(hoveredPicture, page.find("Bullets"));
}

TEST(Strings, AreTheQuickReferenceAndTheUnsavedThemePrompt) {
    EXPECT_EQ(EmbeddedResources().String(kUnsavedThemePrompt),
              "Theme \"%1\" modified.\nDo you wish to save the changes ?");
    const std::string guide = EmbeddedResources().String(kQuickReferenceText);
    EXPECT_EQ(std::ranges::count(guide, '\n'), 16);
    EXPECT_NE(guide.find("\n\nStep 7"), std::string::npos);
    EXPECT_TRUE(guide.ends_with("\n\nSee Webtrove Morpho Help file for more information."));
}

TEST(Resources, AreEmptyWhereThereIsNone) {
    EXPECT_EQ(Bytes(kTemplateResource, 102) + Bytes("template", kPreviewTemplate), "");
    EXPECT_EQ(EmbeddedResources().String(103), "");
}

}  // namespace
}  // namespace morpho
