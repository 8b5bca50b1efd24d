#include "resources/embedded_resources.h"

#include <gtest/gtest.h>

#include <string>

#include "resources/resource_ids.h"

namespace morpho {
namespace {

TEST(PreviewTemplate, CrossesTheActiveHorizontalBarsHoveredAndPushed) {
    const std::string page = EmbeddedResources().Bytes(kTemplateResource, kPreviewTemplate);
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
    EXPECT_TRUE(guide.ends_with("\n\nSee Webtrove Morpho Help file for more information."));
}

}  // namespace
}  // namespace morpho
