#include "addin/add_in_im.h"

#include "addin/mod_addin_common.h"
#include "platform/platform.h"
#include "platform/resources.h"
#include "platform/run_time_error.h"
#include "resources/resource_ids.h"

namespace morpho {

namespace {

constexpr AddInNames kNames{"Image Morpho", "IM", "IM connection error: ", "NoIMAddinError"};

constexpr std::string_view kBothMissing =
    "Failed to create Image morpho menu/toolbar items. Image morpho will not be accessible.";
constexpr std::string_view kMenuItemMissing =
    "Failed to create Image Morpho menu item under Format menu. But it will be available on the "
    "Pictures toolbar.";
constexpr std::string_view kToolbarItemMissing =
    "Failed to create Image Morpho toolbar item on the Pictures toolbar. But it will be available "
    "under Format menu.";

}  // namespace

AddInIM::AddInIM(const Program& program, EditorFactory makeEditor)
    : AddIn(program, kNames, std::move(makeEditor)) {}

void AddInIM::CreateItems(CommandBars& bars) {
    CreateToolbarItem(bars);
    CreateMenuItem(bars, m_btnIM, "ImageMorpho", "Image Morpho...");
}

void AddInIM::CreateToolbarItem(CommandBars& bars) {
    CommandBarItem wanted;
    wanted.picture = TheProgram().platform.resources.Bytes(kBitmapResource, kToolbarFace);
    if (wanted.picture.empty()) throw RunTimeError(ErrorNumber::kInvalidPicture, "Invalid picture");
    const auto pictures = bars.Item("Pictures");
    wanted.bar = pictures.get();
    wanted.tag = "ImageMorphoToolbar";
    wanted.tooltip = "Image Morpho";
    m_btnIMToolbar.Set(CreateCommandBarItem(TheProgram(), wanted), [this] { ShowEditor(); });
}

std::string_view AddInIM::MissingItems() const {
    if (!m_btnIM.Exists() && !m_btnIMToolbar.Exists()) return kBothMissing;
    if (!m_btnIM.Exists()) return kMenuItemMissing;
    if (!m_btnIMToolbar.Exists()) return kToolbarItemMissing;
    return {};
}

}  // namespace morpho
