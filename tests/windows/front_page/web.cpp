#include "windows/front_page/front_page.h"
#include "windows_com/com_error.h"

namespace morpho::test {

namespace {

HostObject FolderObject(FrontPage& host, std::shared_ptr<WebFolder> folder);

HostObject ThemesObject(FrontPage& host, const std::shared_ptr<Web>& web) {
    const auto item = [&host, web](int index) {
        const Theme theme = web->ThemeAt(index);
        return host.Object("Theme", {Get("Name", [theme] { return theme.name; }),
                                     Get("Label", [theme] { return theme.label; })});
    };
    return host.Collection(
        "Themes", 0, [web] { return web->ThemeCount(); }, item);
}

HostObject PropertiesObject(FrontPage& host, const std::shared_ptr<Web>& web) {
    const auto item = [web](const CallArguments& call) {
        const auto value = web->Property(TextOf(call[0]));
        if (!value) throw ErrorOf(E_INVALIDARG, "There is no such property.");
        return *value;
    };
    return host.Object("Properties", {Call("Item", 1, item)});
}

HostObject FilesObject(FrontPage& host, const std::shared_ptr<WebFolder>& folder) {
    const auto item = [&host, folder](int index) {
        const WebFile file = folder->FileAt(index);
        return host.Object("WebFile", {Get("Name", [file] { return file.name; }),
                                       Get("Url", [file] { return file.url; }),
                                       Get("Extension", [file] { return file.extension; })});
    };
    const auto add = [folder](const CallArguments& call) {
        folder->AddFile(TextOf(call[0]), call.Has(1) && TruthOf(call[1]));
        return Variant();
    };
    return host.Collection("WebFiles", 0, [folder] { return folder->FileCount(); }, item,
                           {Call("Add", 2, add)});
}

HostObject FoldersObject(FrontPage& host, const std::shared_ptr<WebFolder>& folder) {
    const auto item = [&host, folder](int index) {
        return FolderObject(host, folder->FolderAt(index));
    };
    const auto add = [&host, folder](const CallArguments& call) {
        return FolderObject(host, folder->AddFolder(TextOf(call[0])));
    };
    return host.Collection("WebFolders", 0, [folder] { return folder->FolderCount(); }, item,
                           {Call("Add", 1, add)});
}

HostObject FolderObject(FrontPage& host, std::shared_ptr<WebFolder> folder) {
    return host.Object("WebFolder",
                       {Get("Name", [folder] { return folder->Name(); }),
                        Get("Url", [folder] { return folder->Url(); }),
                        Get("Files", [&host, folder] { return FilesObject(host, folder); }),
                        Get("Folders", [&host, folder] { return FoldersObject(host, folder); }),
                        Order("Delete", [folder] { folder->Delete(); })});
}

// The members that give a page or a web a theme; both have them.
template <class Themed>
HostMembers ThemeMembers(const std::shared_ptr<Themed>& themed) {
    const auto properties = [themed](const CallArguments& call) {
        return themed->ThemeProperties(IntegerOf(call[0]));
    };
    const auto apply = [themed](const CallArguments& call) {
        themed->ApplyTheme(TextOf(call[0]));
        return Variant();
    };
    return {{"ThemeProperties", 1, {}, properties}, Call("ApplyTheme", 2, apply)};
}

HostObject PageWindowObject(FrontPage& host, const std::shared_ptr<PageWindow>& window) {
    const auto close = [window](const CallArguments& call) {
        window->Close(!call.Has(0) || TruthOf(call[0]));
        return true;
    };
    HostMembers members = ThemeMembers(window);
    members.push_back(
        Get("Document", [&host, window] { return PageDocumentObject(host, window->Document()); }));
    members.push_back(Get("Caption", [window] { return window->Location(); }));
    members.push_back(Call("Close", 1, close));
    return host.Object("PageWindow", members);
}

HostObject PageWindowsObject(FrontPage& host, const std::shared_ptr<WebWindow>& window) {
    const auto item = [&host, window](int index) {
        return PageWindowObject(host, window->PageWindowAt(index));
    };
    const auto add = [&host, window](const CallArguments& call) {
        if (call.Has(0)) throw ErrorOf(E_NOTIMPL, "Only blank pages are opened here.");
        return PageWindowObject(host, window->AddPageWindow());
    };
    return host.Collection("PageWindows", 0, [window] { return window->PageWindowCount(); }, item,
                           {Call("Add", 1, add)});
}

}  // namespace

HostObject WebWindowObject(FrontPage& host, std::shared_ptr<WebWindow> window) {
    return host.Object(
        "WebWindow",
        {Get("PageWindows", [&host, window] { return PageWindowsObject(host, window); })});
}

HostObject WebObject(FrontPage& host, std::shared_ptr<Web> web) {
    const auto locate = [&host, web](const CallArguments& call) {
        std::shared_ptr<WebFolder> folder = web->LocateFolder(TextOf(call[0]));
        return folder ? FolderObject(host, std::move(folder)) : nullptr;
    };
    HostMembers members = ThemeMembers(web);
    members.insert(
        members.end(),
        {Get("Url", [web] { return web->Url(); }), Get("Title", [web] { return web->Title(); }),
         Get("RootFolder", [&host, web] { return FolderObject(host, web->RootFolder()); }),
         Get("Themes", [&host, web] { return ThemesObject(host, web); }),
         Get("Properties", [&host, web] { return PropertiesObject(host, web); }),
         Get("ActiveWebWindow",
             [&host, web] { return WebWindowObject(host, web->ActiveWebWindow()); }),
         Call("LocateFolder", 1, locate), Order("Refresh", [web] { web->Refresh(); }),
         Order("RecalcHyperlinks", [web] { web->RecalcHyperlinks(); })});
    return host.Object("Web", members);
}

}  // namespace morpho::test
