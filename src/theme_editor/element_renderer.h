#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "shared/component.h"
#include "theme_editor/edit_history.h"
#include "theme_editor/element_list.h"

namespace morpho {

class Colorizer;

// Rebuilds pictures of the work copy from their originals, step by step through the history.
class ElementRenderer {
  public:
    ElementRenderer(const Program& program, const ElementList& elements, const EditHistory& history)
        : program_(program), elements_(elements), history_(history) {}

    // Where the originals are, and where the work copy: folders of the theme with a trailing "\".
    void SetFolders(const std::string& originals, const std::string& work);

    // Asks for the JPEG quality anew at the next JPEG element.
    void AskQualityAgain() { askJpegQuality_ = kAsk; }

    // Rebuilds the element's working copy: a copy of the original without history, else one pass a
    // step. Returns true when all passes ran. An error ends the rebuilding silently: the copy stays
    // as it is, and Failures says why.
    bool RenderElement(int row);

    // What ended the last rebuilding of an element, by row; empty when none failed.
    const std::map<int, std::string>& Failures() const { return failures_; }
    // Gives the elements whose rebuilding failed, maybe in the middle of their steps, their
    // original pictures. Throws RunTimeError.
    void RestoreFailed();

  private:
    static constexpr std::int16_t kAsk = -1;

    bool Rebuild(int row);
    void AskQuality(Colorizer& colorizer);

    const Program program_;
    const ElementList& elements_;
    const EditHistory& history_;
    std::string originals_;
    std::string work_;
    // kAsk: ask at the next JPEG element. Afterwards this holds the answer, and nothing is asked.
    std::int16_t askJpegQuality_ = kAsk;
    std::map<int, std::string> failures_;
};

}  // namespace morpho
