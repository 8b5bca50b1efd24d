#include "about/frm_quick_reference.h"

#include <string>

#include "platform/platform.h"
#include "platform/resources.h"
#include "resources/resource_ids.h"

namespace morpho {

frmQuickReference::frmQuickReference(const Program& program)
    : LoggedForm(program, {"frmQuickReference", "Theme Morpho Quick Reference Card", {7200, 6225}}),
      lblTitle(*this, {.name = "lblTitle",
                       .place = {180, 180, 6840, 240},
                       .caption = "Theme Morpho Quick Reference"}),
      txtQuickReference(*this, {.name = "txtQuickReference", .place = {180, 510, 6840, 5040}},
                        TextBox::Kind::kMultiLineReadOnly),
      chkDontShow(*this, {.name = "chkDontShow",
                          .place = {180, 5730, 4500, 285},
                          .caption = "&Don't show this message again"}),
      btnOK(
          *this, {.name = "btnOK", .place = {5895, 5700, 1125, 345}, .caption = "OK"},
          [this] { Unload(); }, ButtonRole::kDefault) {}

void frmQuickReference::Form_Load() {
    // The resource ends its lines with LF, a text box with CR LF.
    std::string text;
    for (const char c : ThePlatform().resources.String(kQuickReferenceText)) {
        if (c == '\n') text += '\r';
        text += c;
    }
    txtQuickReference.SetText(text);
}

}  // namespace morpho
