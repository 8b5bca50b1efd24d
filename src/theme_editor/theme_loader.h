#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/front_page.h"
#include "shared/component.h"
#include "theme_editor/catalogue.h"
#include "theme_editor/element_list.h"

namespace morpho {

// Copies a theme into the work folder and lists every catalogue element whose picture its style
// sheets name and the copy holds.
class ThemeLoader {
  public:
    ThemeLoader(const Program& program, ElementList& elements)
        : program_(program), elements_(elements) {}

    // `source` is the host's folder of the theme, `workRoot` the folder that holds the only work
    // copy and is made anew. No trailing "\". A copy or a parse that fails throws RunTimeError and
    // ends the load.
    void LoadTheme(const std::string& name, const std::string& source, const std::string& workRoot);

  private:
    class ScratchPage;

    void CopyTheme(const std::string& source, const std::string& workRoot) const;
    void ListElements();
    // The sheet as text to insert into a page. False when it cannot be read.
    bool ReadStyleSheet(const std::string& path);
    void FindRules(std::string_view selector, const StyleSheet& sheet);
    void LookUp(const CatalogueElement& element, const StyleSheet& sheet);
    std::string FindAttribute(const CatalogueElement& element, const StyleSheet& sheet) const;
    void ListPicture(const CatalogueElement& element, const std::string& name);

    const Program program_;
    ElementList& elements_;
    std::string workFolder_;
    std::string styleHtml_;
    std::vector<int> rules_;  // of the current sheet, with the current selector
};

}  // namespace morpho
