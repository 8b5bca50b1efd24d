#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/front_page.h"

namespace morpho {

// How a page of a web on disk calls itself and its pictures.
struct PageAddresses {
    std::string page;  // the page's address, escaped (see EscapedAddress)
    std::string root;  // what "/" leads to: the web's address, escaped
    // Whether the addresses that are handed out are escaped, too.
    bool areEscaped = true;
};

// The document of a page of the web: its pictures, without style sheets. Changes stay in it; the
// file on the disk is only read.
class DiskPageDocument : public PageDocument {
  public:
    // `text` is the page's, in a form that has ASCII in it (see PageText).
    DiskPageDocument(PageAddresses addresses, std::string text);

    // What is selected: nothing at first.
    void SelectPicture(int index);
    void SelectHtml(std::string html);

    std::string Url() const override;
    std::string SelectionHtml() const override { return selection_; }
    int ImageCount() const override;
    // Empty for a picture without address. A file's address has neither query nor fragment.
    std::string ImageAddress(int index) const override;
    std::unique_ptr<UndoTransaction> BeginUndoTransaction(std::string_view title) override;
    void InsertAdjacentHtml(std::string_view where, std::string_view html) override;
    // This host hands out no style sheets of its pages.
    std::unique_ptr<StyleSheet> StyleSheetAt(int) const override { throw NotOffered(); }

  private:
    // What the document consists of: an inserted text has no effect on how the rest is read.
    struct Content {
        std::vector<std::unique_ptr<const std::string>> texts;
        std::vector<std::string_view> pictures;  // img tags of the texts, in order
    };
    class Undo;

    std::string_view PictureAt(int index) const;
    std::string HandedOut(const std::string& escaped) const;

    PageAddresses addresses_;
    std::string base_;  // what its addresses start from
    std::string selection_;
    std::shared_ptr<Content> content_;
};

}  // namespace morpho
