#include "resources/embedded_resources.h"

#include <algorithm>

#include "resources/embedded_files.h"
#include "resources/resource_ids.h"

namespace morpho {

namespace {

constexpr const char* kQuickReference =
    "Follow the simple steps below and create a whole new look for your web site in seconds.\n\n"
    "Step 1: Bring up a FrontPage web and a page in that web that uses the theme you would like to "
    "edit. To edit a theme without applying it to the entire web, apply a theme to a selected "
    "page, "
    "then save the page.\n\n"
    "Step 2: Go to the Format menu and select the Theme Morpho. This will bring up the Theme "
    "Morpho "
    "user interface.\n\n"
    "Step 3: Select a theme to edit in the Themes popup menu. Tip: Maximize the window so you can "
    "see all the theme graphics at once.\n\n"
    "Step 4: From the list on the left, select the graphics you wish to colorize.\n\n"
    "Step 5: Use the Brightness, Saturation and Hue controls to modify the color of the theme "
    "graphics.\n\n"
    "Step 6: Change the color of other selected graphics by repeating steps 4 and 5. If a graphic "
    "is "
    "selected in multiple colorization operations, the color change is accumulated.\n\n"
    "Step 7: Save the Theme by using the Save As button so that other web sites will not be "
    "affected "
    "by the new changes. Then name the new theme and press the Save button.\n\n"
    "See Webtrove Morpho Help file for more information.";

}  // namespace

std::span<const std::byte> EmbeddedResources::Data(std::string_view type, int id) const {
    const auto files = EmbeddedFiles();
    const auto found = std::ranges::find_if(
        files, [&](const EmbeddedFile& file) { return file.type == type && file.id == id; });
    return found == files.end() ? std::span<const std::byte>() : found->bytes;
}

std::string EmbeddedResources::String(int id) const {
    switch (id) {
        case kQuickReferenceText:
            return kQuickReference;
        case kUnsavedThemePrompt:
            return "Theme \"%1\" modified.\nDo you wish to save the changes ?";
        default:
            return {};
    }
}

}  // namespace morpho
