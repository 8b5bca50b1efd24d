#include "formats/web_address.h"

#include <gtest/gtest.h>

namespace morpho {
namespace {

TEST(WebAddress, IsCombinedAsABrowserDoesIt) {
    const std::string base = "file:///Z:/my web/sub/page.htm?x/y#z/";
    for (const auto& [url, expected] : std::initializer_list<std::pair<const char*, const char*>>{
             {"a%20b.gif", "file:///Z:/my web/sub/a%20b.gif"},
             {"../pics\\a.gif?q/..#f", "file:///Z:/my web/pics/a.gif?q/..#f"},
             {"./x/../../y/.", "file:///Z:/my web/y/"},
             {"../../../../a", "file:///Z:/a"},
             {"/pics/../../a", "FILE:///Z:/my web/a"},
             {"//server/a/../b", "file://server/b"},
             {"", "file:///Z:/my web/sub/page.htm?x/y"},
             {"#top", "file:///Z:/my web/sub/page.htm?x/y#top"},
             {"?q", "file:///Z:/my web/sub/page.htm?q"},
             {"HTTP://host/../a", "HTTP://host/../a"}})
        EXPECT_EQ(CombinedAddress(base, url, "FILE:///Z:/my web"), expected) << url;
    EXPECT_EQ(CombinedAddress("http://host/a/b", "/../c", "http://hos"), "http://host/c");
}

TEST(WebAddress, OfAFileIsSpelledInOneWay) {
    EXPECT_EQ(EscapedAddress("file:///Z:/50% a#b?\n ü"), "file:///Z:/50%25 a%23b%3F%0A ü");
    EXPECT_EQ(FileAddress("file:///Z:/50% %c3%bc%20%E4/a%2Fb%23.gif?x"),
              "file:///Z:/50%25 \xC3\x83\xC2\xBC \xC3\xA4/a%2Fb%23.gif");
}

}  // namespace
}  // namespace morpho
