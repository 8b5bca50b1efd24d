#include "image_editor/selected_image.h"

#include <algorithm>
#include <memory>

#include "formats/web_text.h"
#include "platform/front_page.h"
#include "shared/log.h"
#include "text/ignoring_case.h"
#include "text/windows_1252.h"

namespace morpho {

namespace {

constexpr std::string_view kDiskScheme = "file:///";

// Inserts HTML at the start of the page's body for as long as it lives.
class TemporaryInsertion {
  public:
    TemporaryInsertion(PageDocument& page, std::string_view html)
        : changes_(page.BeginUndoTransaction("Image Morpho")) {
        page.InsertAdjacentHtml("AfterBegin", html);
    }
    // The host may refuse to take its own changes out again; nothing can be done about that here.
    ~TemporaryInsertion() {
        try {
            changes_->Abort();
        } catch (const std::exception&) {
        }
    }
    TemporaryInsertion(const TemporaryInsertion&) = delete;
    TemporaryInsertion& operator=(const TemporaryInsertion&) = delete;

  private:
    std::unique_ptr<UndoTransaction> changes_;
};

// The host tells what is selected only as HTML. Inserted into the page, its first picture is the
// page's first picture, whose address the host resolves.
std::string AddressOfFirstPicture(PageDocument& page, const std::string& html) {
    const int before = page.ImageCount();
    const TemporaryInsertion inserted(page, html);
    return page.ImageCount() > before ? page.ImageAddress(0) : std::string();
}

// The location of a picture in a page that belongs to no open web.
ImageLocation OnDisk(std::string address) {
    if (!StartsWithIgnoringAsciiCase(address, kDiskScheme)) return {};
    address.erase(0, kDiskScheme.size());
    std::replace(address.begin(), address.end(), '/', '\\');
    return {ImageKind::kDisk, std::move(address)};
}

// Release 4 takes addresses as they stand in a page, the later ones without percent escapes.
bool TakesEscapes(const Application& host) {
    return host.Version().starts_with("4.");
}

}  // namespace

ImageLocation FindSelectedImage(const Program& program) {
    Application& host = *program.component.application;
    const std::unique_ptr<PageDocument> page = host.ActiveDocument();
    if (!page) return {};
    WriteLog(program, "Scanning for selected image...");
    const std::string html = page->SelectionHtml();
    if (html.empty()) {
        WriteLog(program, "No selection");
        return {};
    }
    std::string address = AddressOfFirstPicture(*page, html);
    if (address.empty()) return {};
    WriteLog(program, "Opening selected image " + address + "...");
    address = host.MakeAbs(page->Url(), address);
    ImageLocation image = host.ActiveWeb() ? ImageLocation{ImageKind::kWeb, std::move(address)}
                                           : OnDisk(std::move(address));
    if (!TakesEscapes(host)) image.address = TextOfUnknownCoding(DecodedPercents(image.address));
    WriteLog(program, "Selected image URL: " + image.address);
    return image;
}

}  // namespace morpho
