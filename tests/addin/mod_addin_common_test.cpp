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
        {{"&Font", "F&ormat", "Fish && &xchips"}, wanted, "&Image Morpho..."},
        {{"Pr&int", "&Make"}, wanted, "Im&age Morpho..."},
        {{"a&&&i", "n&one &m"}, wanted, "I&mage Morpho..."},
        {{"R&&I", "I&", "&&", "&&&", "plain"}, wanted, "&Image Morpho..."},
        {{"&i", "&m", "&a", "&g"}, "ima Go", "ima G&o"},
        {{"&I", "&M", "&A", "&G", "&E", "&O", "&R", "&P", "&H"}, wanted, wanted},
        {{"&é"}, "Éü", "É&ü"},
    };
    for (const auto& row : rows) {
        AddInWorld test;
        for (const char* caption : row.captions)
            test.format.Append({.look = {.caption = caption}});
        const auto controls = test.bars.View()->ActiveMenuBar()->Controls()->Item(3)->Controls();
        EXPECT_EQ(MakeAcceleratorCaption(*controls, row.caption), row.expected) << test.Shown();
    }
}

TEST(CreateCommandBarItem, GoesWhereItsReferencesSay) {
    const struct {
        std::optional<ControlReference> popup, control;
        bool append = true;
        std::string menu;     // afterwards
        std::string logLine;  // one that says why
        int type = kButtonControl;
    } rows[] = {
        {30006, 51, true, "[A][&New][B]", "  item created"},
        {30006, "b", false, "[A][B][&New]", "  item created"},
        {"menu", 99, true, "[A][B][&New]", "  Ref item not found"},
        {30006, 99, false, "[A][B]", "  not appending"},
        {30006, {}, false, "[A][B]", "  Ref control not specified."},
        {51, {}, true, "[A][B]", "  Ref popup not of type popup"},
        {7, {}, true, "[A][B]", "  Ref popup id 7 not found"},
        {"x", {}, true, "[A][B]", "  Ref popup tag x not found"},
        {30006,
         {},
         true,
         "[A][B]",
         "Error while creating item new Desc: A control of type 99 cannot be added.",
         99},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.logLine);
        AddInWorld test;
        test.bars.MenuBar()->controls->All()[2]->SetTag("menu");
        test.format.Append({.id = 51, .look = {.caption = "A"}});
        test.format.Append({.look = {.caption = "B"}})->SetTag("b");
        const auto bar = test.bars.View()->ActiveMenuBar();
        const auto created = CreateCommandBarItem(
            test.world.program,
            {bar.get(), "new", "New", {}, {}, row.popup, row.control, row.append, false, row.type});
        EXPECT_EQ(test.Shown(), row.menu);
        EXPECT_EQ(created != nullptr, test.format.Count() == 3);
        EXPECT_THAT(test.world.LogLines(), testing::Contains(row.logLine));
    }
}

TEST(CreateCommandBarItem, StaysWithoutTheFaceThatTheHostRefuses) {
    AddInWorld test("4.0");
    test.application->version = "5.0";  // but these are bars of release 4
    const auto bar = test.bars.View()->Item("Pictures");
    EXPECT_NE(CreateCommandBarItem(test.world.program, {bar.get(), "odd", {}, {}, "BM"}), nullptr);
    EXPECT_EQ(test.world.LogLines().back(),
              "Error while setting image for item odd Desc: A button of this release has no "
              "property Picture.");
}

}  // namespace
}  // namespace morpho::test
