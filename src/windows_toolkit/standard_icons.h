#pragma once

#include <map>
#include <string>

#include "windows_system/win32.h"

#include <commctrl.h>

namespace morpho {

// The system's icons for the names of images in tree views and list views, each made once.
class StandardIcons {
  public:
    explicit StandardIcons(int dpi);
    ~StandardIcons();
    StandardIcons(const StandardIcons&) = delete;
    StandardIcons& operator=(const StandardIcons&) = delete;

    HIMAGELIST Images() const { return images_; }
    // The index among the images; I_IMAGENONE for an unknown name.
    int Index(const std::string& imageName);

  private:
    HIMAGELIST images_;
    std::map<std::string, int> indices_;
};

}  // namespace morpho
