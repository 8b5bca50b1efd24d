#pragma once

#include <functional>
#include <optional>
#include <string>

#include "web_host/web_files.h"

namespace morpho {

// What the person works on: a page of the open web and what is selected in it, a picture or text.
struct ActivePage {
    WebPath page = {};                // its file; a picture's file is a page of that picture
    std::optional<int> picture = {};  // which of the page's pictures (img elements), from 0
    std::string html = {};            // the selected text and pictures; UTF-8
};

// Tells it whenever an add-in asks; nothing where no page is in front.
using ActivePageSource = std::function<std::optional<ActivePage>()>;

}  // namespace morpho
