#include "windows_host/page_document_view.h"

#include <string>
#include <utility>

#include "windows_host/style_sheet_view.h"

namespace morpho {

namespace {

// The changes stay unless they were taken out again.
class UndoView : public UndoTransaction {
  public:
    explicit UndoView(DispatchCaller transaction) : transaction_(std::move(transaction)) {}
    ~UndoView() override {
        try {
            if (transaction_) transaction_.Call("commit");
        } catch (const std::exception&) {
            // The host keeps the changes in any case.
        }
    }
    UndoView(const UndoView&) = delete;
    UndoView& operator=(const UndoView&) = delete;

    void Abort() override { std::exchange(transaction_, {}).Call("abort"); }

  private:
    DispatchCaller transaction_;
};

class DocumentView : public PageDocument {
  public:
    explicit DocumentView(DispatchCaller document) : document_(std::move(document)) {}

    std::string Url() const override { return TextOf(document_.Get("url")); }

    std::string SelectionHtml() const override {
        const DispatchCaller range = document_.GetDispatch("selection").GetDispatch("createRange");
        if (range.Has("htmlText")) return TextOf(range.Get("htmlText"));
        // Selected pictures make a range of controls, which has no text of its own.
        std::string html;
        const int count = IntegerOf(range.Get("length"));
        for (int i = 0; i < count; ++i)
            html += TextOf(range.GetDispatch("item", {i}).Get("outerHTML"));
        return html;
    }

    int ImageCount() const override { return IntegerOf(Images().Get("length")); }
    std::string ImageAddress(int index) const override {
        // Past its end the collection has Nothing, which refuses the call.
        return TextOf(Images().GetDispatch("item", {index}).Get("src"));
    }

    std::unique_ptr<UndoTransaction> BeginUndoTransaction(std::string_view title) override {
        return std::make_unique<UndoView>(document_.GetDispatch("createUndoTransaction", {title}));
    }
    void InsertAdjacentHtml(std::string_view where, std::string_view html) override {
        document_.GetDispatch("body").Call("insertAdjacentHTML", {where, html});
    }
    std::unique_ptr<StyleSheet> StyleSheetAt(int index) const override {
        return ViewOfStyleSheet(document_.GetDispatch("styleSheets").GetDispatch("item", {index}));
    }

  private:
    DispatchCaller Images() const {
        return document_.GetDispatch("body").GetDispatch("all").GetDispatch(
            "tags", {std::string_view("img")});
    }

    DispatchCaller document_;
};

}  // namespace

std::unique_ptr<PageDocument> ViewOfDocument(DispatchCaller document) {
    return document ? std::make_unique<DocumentView>(std::move(document)) : nullptr;
}

}  // namespace morpho
