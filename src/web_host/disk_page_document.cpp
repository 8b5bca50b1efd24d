#include "web_host/disk_page_document.h"

#include "formats/page_pictures.h"
#include "formats/web_address.h"
#include "formats/web_text.h"
#include "text/ignoring_case.h"
#include "text/windows_1252.h"
#include "web_host/refusal.h"

namespace morpho {

// Lives on with the content when the document has gone.
class DiskPageDocument::Undo : public UndoTransaction {
  public:
    explicit Undo(std::shared_ptr<Content> content)
        : content_(std::move(content)), before_(content_->pictures) {}

    void Abort() override { content_->pictures = before_; }

  private:
    std::shared_ptr<Content> content_;
    std::vector<std::string_view> before_;
};

DiskPageDocument::DiskPageDocument(PageAddresses addresses, std::string text)
    : addresses_(std::move(addresses)), content_(std::make_shared<Content>()) {
    content_->texts.push_back(std::make_unique<const std::string>(std::move(text)));
    content_->pictures = PictureTags(*content_->texts.front());
    const std::string base = BaseOfPage(*content_->texts.front());
    base_ = CombinedAddress(addresses_.page, base, addresses_.root);
}

void DiskPageDocument::SelectPicture(int index) {
    const bool exists = index >= 0 && index < ImageCount();
    selection_ = exists ? TextOfUnknownCoding(PictureAt(index)) : std::string();
}

void DiskPageDocument::SelectHtml(std::string html) {
    selection_ = std::move(html);
}

std::string DiskPageDocument::Url() const {
    return HandedOut(addresses_.page);
}

int DiskPageDocument::ImageCount() const {
    return static_cast<int>(content_->pictures.size());
}

std::string DiskPageDocument::ImageAddress(int index) const {
    const std::string source = PictureSource(PictureAt(index));
    if (source.empty()) return {};
    const std::string address = CombinedAddress(base_, source, addresses_.root);
    const bool isOfDisk = StartsWithIgnoringAsciiCase(address, "file:");
    return isOfDisk ? HandedOut(FileAddress(address)) : address;
}

std::unique_ptr<UndoTransaction> DiskPageDocument::BeginUndoTransaction(std::string_view) {
    return std::make_unique<Undo>(content_);
}

void DiskPageDocument::InsertAdjacentHtml(std::string_view where, std::string_view html) {
    const bool atBegin = EqualIgnoringAsciiCase(where, "AfterBegin");
    if (!atBegin && !EqualIgnoringAsciiCase(where, "BeforeEnd"))
        RefuseCall("A page takes text after its beginning or before its end only.");
    content_->texts.push_back(std::make_unique<const std::string>(html));
    const auto added = PictureTags(*content_->texts.back());
    auto& pictures = content_->pictures;
    pictures.insert(atBegin ? pictures.begin() : pictures.end(), added.begin(), added.end());
}

std::string_view DiskPageDocument::PictureAt(int index) const {
    if (index < 0 || index >= ImageCount()) RefuseCall("The page has no such picture.");
    return content_->pictures[static_cast<std::size_t>(index)];
}

std::string DiskPageDocument::HandedOut(const std::string& escaped) const {
    return addresses_.areEscaped ? escaped : DecodedPercents(escaped);
}

}  // namespace morpho
