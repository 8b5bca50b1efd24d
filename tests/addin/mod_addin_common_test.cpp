#include "addin/mod_addin_common.h"

#include "addin/add_in_world.h"

namespace morpho::test {
namespace {

TEST(MakeAcceleratorCaption, TakesTheFirstLetterThatIsFree) {
    const std::string wanted = "Image Morpho...";
    const struct {
        std::vector<const char*> captions;
        std::string caption, expected;
    } rows[] = {
        {{}, wanted, "&Image Morpho..."},
        {{"&Font", "F&ormat", "Fish && &xchips"}, wanted, "&Image Morpho..."},
        {{"Pr&int", "&Make"}, wanted, "Im&age Morpho..."},
        {{"a&&&i", "n&one &m"}, wanted, "I&mage Morpho..."},
        {{"R&&I", "I&", "&&", "&&&", "plain"}, wanted, "&Image Morpho..."},
        {{"&i", "&m", "&a", "&g"}, "ima Go", "ima G&o"},
        {{"&I", "&M", "&A", "&G", "&E", "&O", "&R", "&P", "&H"}, wanted, wanted},
        {{"&é"}, "Éü", "É&ü"},
        {{}, "", ""},
    };
    for (const auto& row : rows) {
        HostCommandBars bars("6.0", nullptr);
        HostControls& format = bars.Menu(HostMenu::kFormat);
        for (const char* caption : row.captions)
            format.Append({.look = {.caption = caption}});
        const auto controls = bars.View()->ActiveMenuBar()->Controls()->Item(3)->Controls();
        EXPECT_EQ(MakeAcceleratorCaption(*controls, row.caption), row.expected)
            << AddInWorld::Shown(format);
    }
}

TEST(CreateCommandBarItem, GoesWhereItsReferencesSay) {
    const struct {
        std::optional<ControlReference> popup, control;
        bool append = true;
        std::string menu;     // afterwards
        std::string logLine;  // one that says why
    } rows[] = {
        {30006, 51, true, "[A][&New][B]", "  item created"},
        {30006, std::string("b"), false, "[A][B][&New]", "  item created"},
        {std::string("menu"), 99, true, "[A][B][&New]", "  Ref item not found"},
        {30006, 99, false, "[A][B]", "  not appending"},
        {30006, {}, false, "[A][B]", "  Ref control not specified."},
        {51, {}, true, "[A][B]", "  Ref popup not of type popup"},
        {7, {}, true, "[A][B]", "  Ref popup id 7 not found"},
        {std::string("x"), {}, true, "[A][B]", "  Ref popup tag x not found"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.logLine);
        AddInWorld test;
        test.world.TurnLogOn();
        HostControls& format = test.bars.Menu(HostMenu::kFormat);
        test.bars.MenuBar()->controls->All()[2]->SetTag("menu");
        format.Append({.id = 51, .look = {.caption = "A"}});
        format.Append({.look = {.caption = "B"}})->SetTag("b");
        const auto bar = test.bars.View()->ActiveMenuBar();
        CommandBarItem item{bar.get(), "new", "New", {}, {}, row.popup, row.control, row.append};
        item.beginGroup = true;
        const auto created = CreateCommandBarItem(test.world.program, item);
        EXPECT_EQ(test.Menu(), row.menu);
        EXPECT_EQ(created != nullptr, format.Count() == 3);
        EXPECT_THAT(test.world.LogLines(), testing::Contains(row.logLine));
        if (created) {
            EXPECT_TRUE(
                format.All()[static_cast<std::size_t>(created->Index()) - 1]->Look().beginsGroup);
        }
    }
}

TEST(CreateCommandBarItem, LogsWhatTheHostRefuses) {
    AddInWorld test("4.0");
    test.world.TurnLogOn();
    test.world.component.application = test.application;
    CommandBarItem item;
    EXPECT_EQ(CreateCommandBarItem(test.world.program, item), nullptr);  // there is no bar
    const auto bar = test.bars.View()->Item("Pictures");
    item.bar = bar.get();
    item.tag = "odd";
    item.type = 99;
    EXPECT_EQ(CreateCommandBarItem(test.world.program, item), nullptr);
    EXPECT_EQ(test.world.LogLines().back(),
              "Error while creating item odd Desc: A control of type 99 cannot be added.");
    test.application->version = "5.0";  // but these are bars of release 4
    item.type = kButtonControl;
    item.picture = "BM";
    EXPECT_NE(CreateCommandBarItem(test.world.program, item), nullptr);
    EXPECT_EQ(test.world.LogLines().back(),
              "Error while setting image for item odd Desc: A button of this release has no "
              "property Picture.");
}

}  // namespace
}  // namespace morpho::test
