#include "program.h"

namespace {

using nlohmann::json;

using ListCommand = ProgramTest;

TEST_F(ListCommand, NamesEveryElementWithGroupsInOrderOfAppearance) {
    const morpho::Tree before = Web();
    const json themes = Report("list WEB");
    ASSERT_EQ(themes.size(), 2u);
    EXPECT_EQ(themes[0]["name"], "almanac");
    EXPECT_EQ(themes[0]["label"], "Old Almanac");
    EXPECT_EQ(themes[0]["elements"].size(), 31u);
    EXPECT_EQ(themes[1]["elements"].size(), 38u);
    EXPECT_EQ(themes[1]["elements"][0]["key"], "active/nav-banner-image");
    EXPECT_EQ(themes[1]["elements"][37]["key"], "global/background-image");
    for (const json& theme : themes) {
        std::map<std::string, std::size_t> groups;
        for (const json& element : theme["elements"]) {
            const auto group = groups.emplace(element["file"], groups.size() + 1).first;
            EXPECT_EQ(element["group"], group->second) << element["key"];
        }
    }
    EXPECT_EQ(Web(), before);
}

TEST_F(ListCommand, PrintsThemesOrOneThemesElementsAsText) {
    const auto expectPrinted = [this](const char* arguments, const char* text) {
        const Outcome outcome = Run(arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_NE(outcome.out.find(text), std::string::npos) << outcome.out;
    };
    expectPrinted("list WEB", "orrery");
    expectPrinted("list WEB", "Old Almanac");
    expectPrinted("list WEB --theme ORRERY", "global/background-image");
}

TEST_F(ListCommand, AWebWithoutThemesHasNone) {
    std::filesystem::remove_all(home_ / "web/_themes");
    EXPECT_EQ(Report("list WEB"), json::array());
    ExpectRefusal("recolor WEB --theme orrery --apply --export OUT", 1, "orrery");
}

}  // namespace
