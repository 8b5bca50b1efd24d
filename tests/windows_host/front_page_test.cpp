#include "windows_host/front_page_application.h"

#include <gtest/gtest.h>

#include "support/application_contract.h"
#include "support/command_bars_contract.h"
#include "windows/front_page/host_world.h"
#include "windows_com/dispatch_object.h"
#include "windows_host/com_automation.h"
#include "windows_host/style_sheet_view.h"

namespace morpho::test {
namespace {

// FrontPage as the editors see it, by calls to the objects of the played one.
class PlayedFrontPage {
  public:
    explicit PlayedFrontPage(const std::string& version = "6.0") : world_(version) {
        world_.Host().selectsAsControl = true;  // the picture that a test of the suite selects
    }

    Application& Subject() { return application_; }
    const TemporaryFolder& Folder() const { return world_.Folder(); }
    std::string Path(const std::string& name) const { return Folder() / name; }
    void Select(const std::string& page, int picture) { world_.Select({page}, picture); }
    HostWorld& World() { return world_; }

  private:
    HostWorld world_;
    FrontPageApplication application_{DispatchCaller(ApplicationObject(world_.Host()))};
};
INSTANTIATE_TYPED_TEST_SUITE_P(FrontPage, ApplicationContract, PlayedFrontPage);

class PlayedBars {
  public:
    static constexpr int kFormatMenu = 30006;

    CommandBars& Subject() { return *bars_; }
    void Click(const std::string& tag) {
        frontPage_.World()
            .Application()
            .HostBars()
            .MenuBar()
            ->controls->Find({}, tag, true)
            ->Click();
    }

  private:
    PlayedFrontPage frontPage_;
    std::unique_ptr<CommandBars> bars_ = frontPage_.Subject().Bars();
};
INSTANTIATE_TYPED_TEST_SUITE_P(FrontPage, CommandBarsContract, PlayedBars);

TEST(FrontPageApplication, GivesASelectionThatIsARangeOfText) {
    PlayedFrontPage frontPage;
    frontPage.World().Host().selectsAsControl = false;
    frontPage.Folder().Write("web/p.htm", "<img src=a.gif>");
    frontPage.Select("p.htm", 0);
    EXPECT_EQ(frontPage.Subject().ActiveDocument()->SelectionHtml(), "<img src=a.gif>");
}

TEST(FrontPageApplication, RefreshesAPageWithoutUnsavedChanges) {
    PlayedFrontPage frontPage;
    frontPage.Subject().RefreshViews();  // no page is in front
    frontPage.Select("index.htm", 0);
    int refreshed = 0;
    frontPage.World().Application().SetRefresh([&] { ++refreshed; });
    frontPage.World().Host().hasUnsavedChanges = true;
    frontPage.Subject().RefreshViews();
    EXPECT_EQ(refreshed, 0);
    frontPage.World().Host().hasUnsavedChanges = false;
    frontPage.Subject().RefreshViews();
    EXPECT_EQ(refreshed, 1);
}

TEST(FrontPageApplication, PutsPicturesOnButtonsFromRelease5On) {
    // A bitmap of one white pixel with 24 bits.
    const std::string bitmap(
        "BM\x3A\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0\0\0\0\0\4\0\0\0"
        "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\xFF\xFF\xFF\0",
        58);
    for (const std::string version : {"4.0", "5.0"}) {
        PlayedFrontPage frontPage(version);
        const auto bar = frontPage.Subject().Bars()->Item("Pictures");
        const auto button = bar->Controls()->Add(kButtonControl, "p", 1, true)->AsButton();
        EXPECT_THROW(button->SetPicture("no bitmap"), RunTimeError);
        const auto& shown =
            *frontPage.World().Application().HostBars().Pictures()->controls->All()[0];
        if (version == "4.0") {
            EXPECT_THROW(button->SetPicture(bitmap), RunTimeError);
            EXPECT_THROW(button->PasteFace(), RunTimeError) << "nothing on the clipboard";
        } else {
            button->SetPicture(bitmap);
            EXPECT_EQ(shown.Look().face, bitmap);
        }
    }
}

class Scripted : public DispatchObject<> {
  public:
    using DispatchObject::Members;
};

// A browser answers what it knows with absolute addresses, and leaves what it does not know out of
// the text.
TEST(StyleSheetView, GivesWhatARuleDeclares) {
    VARIANT null = {};
    null.vt = VT_NULL;
    const auto style = MakeComObject<Scripted>();
    const auto rule = MakeComObject<Scripted>();
    const auto rules = MakeComObject<Scripted>();
    const auto sheet = MakeComObject<Scripted>();
    style->Members().Method("getAttribute", 2, [&](const CallArguments& given) {
        const std::string name = TextOf(given[0]);
        if (name == "color") return Variant("");
        if (name == "nothing") return Variant(null);
        return Variant(name == "nav-banner" ? "url(n.gif)" : "url(file:///C:/a.jpg)");
    });
    rule->Members().Property("style", 0, [&](const CallArguments&) { return Variant(style); });
    rules->Members().Method("item", 1, [&](const CallArguments&) { return Variant(rule); });
    sheet->Members().Property("rules", 0, [&](const CallArguments&) { return Variant(rules); });
    const auto view = ViewOfStyleSheet(DispatchCaller(sheet))->Rule(0);
    EXPECT_EQ(view->Attribute("background-image"), "url(file:///C:/a.jpg)");
    style->Members().Property("cssText", 0, [](const CallArguments&) {
        return Variant("BACKGROUND-IMAGE: url(a.jpg); margin: 0");
    });
    EXPECT_EQ(view->Attribute("background-image"), "url(a.jpg)");
    EXPECT_EQ(view->Attribute("nav-banner"), "url(n.gif)");
    EXPECT_EQ(view->Attribute("color"), std::nullopt);
    EXPECT_EQ(view->Attribute("nothing"), std::nullopt);
}

TEST(ComAutomation, CallsTheExplorerByReference) {
    const PlayedFrontPage frontPage;
    const auto call = [](const char* method, std::vector<AutomationValue> arguments) {
        return ComAutomation().CreateObject("FrontPage.Explorer.6.0")->Call(method, arguments);
    };
    EXPECT_EQ(call("vtiIsFolderInWeb", {"_themes/orrery"}), AutomationValue(1));
    EXPECT_EQ(call("vtiBringToTop", {}), AutomationValue());
    EXPECT_THROW(call("vtiNothing", {}), RunTimeError);
}

}  // namespace
}  // namespace morpho::test
