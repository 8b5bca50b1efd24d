// How a command gets its picture.

#include "addin/mod_addin_common.h"
#include "platform/clipboard.h"
#include "platform/front_page.h"
#include "platform/platform.h"
#include "shared/numbers.h"

namespace morpho {

namespace {

// Gives the clipboard back what it held.
class BorrowedClipboard {
  public:
    explicit BorrowedClipboard(Clipboard& clipboard)
        : clipboard_(clipboard), contents_(clipboard.Contents()) {}
    ~BorrowedClipboard() {
        try {
            clipboard_.SetContents(contents_);
        } catch (const std::exception&) {
            // Another program may hold the clipboard. The button has its face or an error anyway.
        }
    }
    BorrowedClipboard(const BorrowedClipboard&) = delete;
    BorrowedClipboard& operator=(const BorrowedClipboard&) = delete;

  private:
    Clipboard& clipboard_;
    std::vector<ClipboardData> contents_;
};

// The first release whose buttons have a Picture property.
constexpr double kReleaseWithPicture = 5;

}  // namespace

void SetButtonFace(const Program& program, CommandBarButton& button, std::string_view picture) {
    if (Val(program.component.application->Version()) >= kReleaseWithPicture)
        return button.SetPicture(picture);
    Clipboard& clipboard = program.platform.clipboard;
    const BorrowedClipboard borrowed(clipboard);
    clipboard.Clear();
    clipboard.SetPicture(picture);
    button.PasteFace();
}

}  // namespace morpho
