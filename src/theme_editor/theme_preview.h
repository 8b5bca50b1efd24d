#pragma once

#include <string>

#include "forms/controls.h"
#include "forms/form.h"
#include "shared/component.h"
#include "theme_editor/element_list.h"

namespace morpho {

// The page that shows the pictures of the work copy in the embedded browser.
class ThemePreview {
  public:
    ThemePreview(const Program& program, Form& form, const ElementList& elements,
                 WebBrowser& wbbImagePreview)
        : program_(program), form_(form), elements_(elements), browser_(wbbImagePreview) {}

    // The theme that is shown, and the page's path, beside the work copy's folder.
    void SetTheme(const std::string& name, const std::string& page);

    // Fills the template's placeholders with the listed elements' pictures, writes the page and
    // shows it. The first time (`navigate`) the browser goes to it, later it only reads it again.
    void GeneratePreview(bool navigate);
    // Blanks the preview until the next page: no theme is loaded. The browser is hidden rather than
    // sent to an empty page, because the disk may be what failed.
    void ShowNothing();
    // Lets the browser read the page and all its pictures again.
    void RefreshPictures();

  private:
    std::string FilledTemplate() const;
    void WritePreviewFile(const std::string& path, const std::string& text);

    const Program program_;
    Form& form_;
    const ElementList& elements_;
    WebBrowser& browser_;
    std::string themeName_;
    std::string page_;
};

}  // namespace morpho
