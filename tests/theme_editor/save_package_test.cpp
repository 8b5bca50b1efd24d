#include "formats/theme_package.h"
#include "theme_editor/rebuilt_package.h"
#include "theme_editor/theme_world.h"

namespace morpho::test {
namespace {

struct SavePackage : testing::Test {
    FakePlatform world;
    std::string elm = "C:\\themes\\coast.elm";

    SavePackage() {
        world.files.PutFile("C:\\work\\a.gif", "picture a");
        world.files.PutFile("C:\\work\\b.gif", "");
        world.files.PutFile("C:\\work\\caf\xC3\xA9,1.css", "sheet");
        world.files.PutFile("C:\\secret.txt", "secret");
    }
    // What the package of this file becomes, in the file `rebuilt`.
    std::string Rebuilt(const std::string& source, const std::string& rebuilt) {
        world.files.PutFile(elm, source);
        RebuildThemePackage(world.platform, elm, rebuilt, "C:\\work");
        return world.files.Bytes(rebuilt);
    }
    // Rebuilding from this source changes nothing, and the refusal says this.
    void ExpectRefused(const std::string& source, const std::string& why) {
        EXPECT_THAT([&] { Rebuilt(source, elm); },
                    testing::ThrowsMessage<RunTimeError>(HasSubstr(why)));
        EXPECT_EQ(world.files.Bytes(elm), source);
    }
};

TEST_F(SavePackage, TakesThePresentFilesOfTheSourcesListAndLeavesNoTail) {
    EXPECT_EQ(
        Rebuilt(
            Package({{"b.gif", std::string(500, 'x')}, {"A.gif", "old"}, {"caf\xE9,1.css", "x"}}),
            elm),
        Package({{"b.gif", ""}, {"A.gif", "picture a"}, {"caf\xE9,1.css", "sheet"}}));
    EXPECT_EQ(Rebuilt("head\r\n 1 \r\na.gif\n<==MS-Theme==>whatever", "C:\\new.elm"),
              "head\r\n 1 \r\na.gif,9\n<==MS-Theme==>picture a");
}

TEST_F(SavePackage, RefusesMembersThatAreNoPlainFilesOfTheFolder) {
    for (const char* name : {"..\\secret.txt", "../secret.txt", "..", "C:secret.txt", "\\a.gif", "",
                             "a.gif.", "a.gif ", "a*.gif", "NUL", "com1.gif", "a\rb.gif"})
        ExpectRefused(Package({{name, ""}}), "no plain file");
    ExpectRefused(Package({{std::string("a\0.gif", 6), ""}}), "no plain file");
    ExpectRefused(Package({{"caf\xE9.gif", ""}, {"CAF\xC9.gif", ""}}), "twice");
    ExpectRefused(Package({{"missing.gif", ""}}), "missing.gif");
}

TEST_F(SavePackage, RefusesNumbersThatLie) {
    const std::string members = "\na.gif,1\nb.gif,1\n<==MS-Theme==>a<==MS-Theme==>b";
    for (const char* count : {"1", "0"})
        ExpectRefused("head\n" + std::string(count) + members, "another number");
    for (const char* count : {"", "-1", "two", "2x", "99999999999999999999"})
        ExpectRefused("head\n" + std::string(count) + members, "how many");
    ExpectRefused("head\n32768" + members, "more than 32767");
    for (const std::string& bytes :
         {"head\n3" + members, "head\n32767" + members, std::string("head"), std::string()})
        ExpectRefused(bytes, "ends within its index");
}

}  // namespace
}  // namespace morpho::test
