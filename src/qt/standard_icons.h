#pragma once

#include <QIcon>
#include <string>

namespace morpho {

// The icon for the name of an image of a tree or list view; a null icon for an unknown name.
QIcon StandardIcon(const std::string& imageName);

}  // namespace morpho
