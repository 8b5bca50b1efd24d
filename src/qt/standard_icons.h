#pragma once

#include <QIcon>
#include <map>
#include <string>

namespace morpho {

// The icons for the names of images in tree views and list views, each made once.
class StandardIcons {
  public:
    // A null icon for an unknown name.
    const QIcon& Icon(const std::string& imageName);

  private:
    std::map<std::string, QIcon> icons_;
};

}  // namespace morpho
