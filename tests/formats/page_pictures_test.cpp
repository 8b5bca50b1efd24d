#include "formats/page_pictures.h"

#include <gtest/gtest.h>

namespace morpho {
namespace {

TEST(PagePictures, AreTheImgTagsOfTheBody) {
    for (const auto& [page, expected] :
         std::initializer_list<std::pair<std::string, std::vector<std::string>>>{
             {"<IMG SRC=a.gif><img alt='>' src = ' b&amp;\n\t&#252;&#xFC;&#XFc;.gif '/><img src>",
              {"a.gif", "b&üüü.gif", ""}},
             {"<!-- <img src=a> --><script>'<img src=b>'</script><style><img src=c></style>"
              "<textarea><img src=d></textarea><noscript><image src=\"e\"></noscript>",
              {"e"}},
             {"<body><img src=a<img src=b>\xFC<img src='\xFC.gif' src=x><imgx src=c>",
              {"a<img", "ü.gif"}},
             {"<p><img src=a><!--><img src=b><img src='c", {"a", "b"}},
             {"</img src=a><![CDATA[<img src=b>]]>", {}}}) {
        std::vector<std::string> sources;
        for (const std::string_view tag : PictureTags(page))
            sources.push_back(PictureSource(tag));
        EXPECT_EQ(sources, expected) << page;
    }
    EXPECT_EQ(BaseOfPage("<base target=_top><base href=' x/'><base href=y>"), "x/");
}

}  // namespace
}  // namespace morpho
