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

TEST(ColorBand, Is397By7PixelsWithFullColourResolution) {
    const std::string band = Bytes(kColorBandResource, kColorBand);
    const size_t frame =
        band.find("\xFF\xC0");  // baseline; length, precision, height, width, components
    ASSERT_NE(frame, std::string::npos);
    EXPECT_EQ(band.substr(frame + 4, 6), std::string("\x08\x00\x07\x01\x8D\x03", 6));
    EXPECT_EQ(band[frame + 11], 0x11);
    EXPECT_EQ(band[frame + 14], 0x11);
}

TEST(ToolbarFace, Is20By20PixelsOnTheFacesGrey) {
    const std::string face = Bytes(kBitmapResource, kToolbarFace);
    EXPECT_EQ(face.substr(0, 2), "BM");
    EXPECT_EQ(face.substr(18, 8), std::string("\x14\0\0\0\x14\0\0\0", 8));
    const auto corner = static_cast<unsigned char>(face.back());
    EXPECT_EQ(face.substr(54 + 4 * corner, 3), "\xC0\xC0\xC0");
}

void ExpectPng(std::string_view type, int id, int width, int height) {
    const std::string png = Bytes(type, id);
    ASSERT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1A\n") << type << ' ' << id;
    EXPECT_EQ(static_cast<unsigned char>(png[19]), width) << type << ' ' << id;
    EXPECT_EQ(static_cast<unsigned char>(png[23]), height % 256) << type << ' ' << id;
}

TEST(Icons, HaveTheSizesTheirNamesSay) {
    ExpectPng(kIconResource, kApplicationIcon16, 16, 16);
    ExpectPng(kIconResource, kApplicationIcon32, 32, 32);
    ExpectPng(kIconResource, kApplicationIcon48, 48, 48);
    ExpectPng(kIconResource, kApplicationIcon128, 128, 128);
    for (int id : {kStopIconId, kQuestionIconId, kInformationIconId})
        ExpectPng(kIconResource, id, 64, 64);
    ExpectPng(kPictureResource, kAboutPicture, 192, 256);
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
