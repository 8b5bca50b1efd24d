#include "windows_host/web_folder_view.h"

#include <string>
#include <utility>

#include "text/ignoring_case.h"

namespace morpho {

namespace {

class FolderView : public WebFolder {
  public:
    explicit FolderView(DispatchCaller folder) : folder_(std::move(folder)) {}

    std::string Name() const override { return TextOf(folder_.Get("Name")); }
    std::string Url() const override { return TextOf(folder_.Get("Url")); }
    int FolderCount() const override {
        return IntegerOf(folder_.GetDispatch("Folders").Get("Count"));
    }
    std::unique_ptr<WebFolder> FolderAt(int index) override {
        return ViewOfFolder(folder_.GetDispatch("Folders").GetDispatch("Item", {index}));
    }
    int FileCount() const override { return IntegerOf(folder_.GetDispatch("Files").Get("Count")); }
    WebFile FileAt(int index) const override {
        const DispatchCaller file = folder_.GetDispatch("Files").GetDispatch("Item", {index});
        return {TextOf(file.Get("Name")), TextOf(file.Get("Url")), TextOf(file.Get("Extension"))};
    }

    std::unique_ptr<WebFolder> FindFolder(std::string_view name) override {
        const DispatchCaller folders = folder_.GetDispatch("Folders");
        const int count = IntegerOf(folders.Get("Count"));
        for (int i = 0; i < count; ++i) {
            DispatchCaller folder = folders.GetDispatch("Item", {i});
            if (EqualIgnoringCase(TextOf(folder.Get("Name")), name))
                return ViewOfFolder(std::move(folder));
        }
        return nullptr;
    }
    std::unique_ptr<WebFolder> AddFolder(std::string_view name) override {
        auto added = ViewOfFolder(folder_.GetDispatch("Folders").GetDispatch("Add", {name}));
        if (!added)
            throw RunTimeError(ErrorNumber::kAutomation, "The host has not created the folder.");
        return added;
    }
    void AddFile(std::string_view localPath, bool overwrite) override {
        folder_.GetDispatch("Files").Call("Add", {localPath, overwrite});
    }
    void Delete() override { folder_.Call("Delete"); }

  private:
    DispatchCaller folder_;
};

}  // namespace

std::unique_ptr<WebFolder> ViewOfFolder(DispatchCaller folder) {
    return folder ? std::make_unique<FolderView>(std::move(folder)) : nullptr;
}

}  // namespace morpho
