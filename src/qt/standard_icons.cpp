#include "qt/standard_icons.h"

#include <QApplication>
#include <QStyle>

namespace morpho {

namespace {

QIcon IconOf(const std::string& imageName) {
    const struct {
        const char* name;
        QStyle::StandardPixmap icon;
    } icons[] = {{"ClosedFolder", QStyle::SP_DirClosedIcon},
                 {"OpenFolder", QStyle::SP_DirOpenIcon},
                 {"Image", QStyle::SP_FileIcon}};
    for (const auto& [name, icon] : icons)
        if (imageName == name) return QApplication::style()->standardIcon(icon);
    return {};
}

}  // namespace

const QIcon& StandardIcons::Icon(const std::string& imageName) {
    const auto found = icons_.find(imageName);
    if (found != icons_.end()) return found->second;
    return icons_.emplace(imageName, IconOf(imageName)).first->second;
}

}  // namespace morpho
