#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morpho {

// The img tags of a page in order of appearance, as they stand there. An img tag opens the body
// where it is not open yet, so that all of them are in it. `page` has ASCII in it (see PageText).
std::vector<std::string_view> PictureTags(std::string_view page);

// The address of the picture in an img tag, with its character references resolved, UTF-8; empty
// when the tag has none.
std::string PictureSource(std::string_view tag);

// The address that a page sets for its addresses to start from (<base href>); empty when it sets
// none.
std::string BaseOfPage(std::string_view page);

}  // namespace morpho
