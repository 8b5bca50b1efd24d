#include "resources/embedded_resources.h"
#include "resources/resource_ids.h"
#include "theme_editor/theme_world.h"

namespace morpho::test {
namespace {

const std::string kPage = kWorkRoot + "Theme.htm";

class ThemePreviewTest : public ThemeWindow {
  protected:
    ThemePreviewTest() {
        world.resources.data[{std::string(kTemplateResource), kPreviewTemplate}] =
            "<#active/list-image-1#><#Active/Nav-Banner-Image#><#normal/nav-banner-image#>"
            "<#global/top-bar-button#>\xE9" +
            std::string(2, '\0');
    }
};

TEST_F(ThemePreviewTest, FillsThePlacesOfAllListedElementsAndLeavesTheOthers) {
    PutTheme("\xE2\x82\xAC\xCE\xA9", "Greek", {{"active/list-image-1", "dot.gif"}});
    Open();
    Tick({kBackground});
    window->sldHue.UserSettle(40);
    EXPECT_EQ(world.files.Bytes(kPage),
              "<blends\\bullet.gif><blends\\banner.gif><blends\\Banner.GIF>"
              "<#global/top-bar-button#>\xE9" +
                  std::string(2, '\0') + "\r\n");
    world.toolkit.WillAnswer(Answer::kNo);
    window->cmbThemeLabel.UserSelect(2);
    EXPECT_THAT(world.files.Bytes(kPage), HasSubstr("<\x80&#937;\\dot.gif>"));
}

TEST_F(ThemePreviewTest, NoNameEndsItsAddressOrIsAPlaceholder) {
    PutTheme("50% #1?", "Odd",
             {{"active/list-image-1", "#normal/nav-banner-image#.gif"},
              {"active/nav-banner-image", "a&amp;<b>%41+.gif"},
              {"normal/nav-banner-image", "sub\\c.gif"}});
    Open();
    window->cmbThemeLabel.UserSelect(2);
    EXPECT_THAT(world.files.Bytes(kPage),
                HasSubstr("<50%25%20%231%3F\\%23normal/nav-banner-image%23.gif>"
                          "<50%25%20%231%3F\\a%26amp%3B%3Cb%3E%2541+.gif>"
                          "<50%25%20%231%3F\\sub\\c.gif>"));
}

TEST_F(ThemePreviewTest, NavigatesOnceAndThenOnlyReadsAgain) {
    Open();
    EXPECT_THAT(browser->seen, ElementsAre("navigate"));
    EXPECT_EQ(window->wbbImagePreview.Address(), kPage);
    EXPECT_EQ(window->wbbImagePreview.NavigationFlags(), 14);

    Tick({kButton});
    window->sldHue.UserSettle(40);
    for (CommandButton* button :
         {&window->cmdApply, &window->cmdUndo, &window->cmdRedo, &window->cmdReset})
        button->UserClick();
    EXPECT_THAT(browser->seen, ElementsAre("refresh", "refresh", "refresh completely",
                                           "refresh completely", "refresh"));
}

TEST_F(ThemePreviewTest, APageThatCannotBeWrittenIsIgnored) {
    world.files.FailOn(kPage);
    Open();
    EXPECT_FALSE(world.files.HasFile(kPage));
    EXPECT_THAT(browser->seen, ElementsAre("navigate"));
    EXPECT_EQ(Log().back(), "TM loaded");
}

TEST(PreviewTemplate, HasAPlaceForEachElementOfTheCatalogueOnce) {
    std::string page = EmbeddedResources().Bytes(kTemplateResource, kPreviewTemplate);
    for (const CatalogueElement& element : kCatalogue) {
        const std::string place = '#' + std::string(element.key) + '#';
        ASSERT_NE(page.find(place), std::string::npos) << place;
        page.erase(page.find(place), place.size());
    }
    EXPECT_THAT(page, Not(HasSubstr("=\"#")));
    EXPECT_THAT(page, HasSubstr("<body background=\"\""));
}

}  // namespace
}  // namespace morpho::test
