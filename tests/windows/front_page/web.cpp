#include "windows/front_page/front_page.h"

namespace morpho::test {

namespace {

HostObject FolderObject(FrontPage& host, std::shared_ptr<WebFolder> folder);

HostObject FolderOrNothing(FrontPage& host, std::shared_ptr<WebFolder> folder) {
    return folder ? FolderObject(host, std::move(folder)) : nullptr;
}

HostObject ThemesObject(FrontPage& host, const std::shared_ptr<Web>& web) {
    const auto item = [&host, web](int index) {
        const Theme theme = web->ThemeAt(index);
        return MakeObject({host.hooks,
                           "Theme",
                           {{"Name", kGet, 0, [theme](const HostCall&) { return theme.name; }},
                            {"Label", kGet, 0, [theme](const HostCall&) { return theme.label; }}}});
    };
    return MakeCollection(
        host.hooks, "Themes", 0, [web] { return web->ThemeCount(); }, item);
}

HostObject PropertiesObject(FrontPage& host, const std::shared_ptr<Web>& web) {
    return MakeObject({host.hooks,
                       "Properties",
                       {{"Item", kCall | kGet, 1, [web](const HostCall& call) {
                             const auto value = web->Property(call.Text(0));
                             if (!value)
                                 throw HostRefusal{E_INVALIDARG, "There is no such property."};
                             return *value;
                         }}}});
}

HostObject FilesObject(FrontPage& host, const std::shared_ptr<WebFolder>& folder) {
    const auto item = [&host, folder](int index) {
        const WebFile file = folder->FileAt(index);
        return MakeObject(
            {host.hooks,
             "WebFile",
             {{"Name", kGet, 0, [file](const HostCall&) { return file.name; }},
              {"Url", kGet, 0, [file](const HostCall&) { return file.url; }},
              {"Extension", kGet, 0, [file](const HostCall&) { return file.extension; }}}});
    };
    const auto add = [folder](const HostCall& call) {
        folder->AddFile(call.Text(0), call.Flag(1, false));
        return HostValue();
    };
    return MakeCollection(host.hooks, "WebFiles", 0, [folder] { return folder->FileCount(); }, item,
                          {{"Add", kCall, 2, add}});
}

HostObject FoldersObject(FrontPage& host, const std::shared_ptr<WebFolder>& folder) {
    const auto item = [&host, folder](int index) {
        return FolderObject(host, folder->FolderAt(index));
    };
    const auto add = [&host, folder](const HostCall& call) {
        return FolderObject(host, folder->AddFolder(call.Text(0)));
    };
    return MakeCollection(host.hooks, "WebFolders", 0, [folder] { return folder->FolderCount(); },
                          item, {{"Add", kCall, 1, add}});
}

HostObject FolderObject(FrontPage& host, std::shared_ptr<WebFolder> folder) {
    return MakeObject({host.hooks,
                       "WebFolder",
                       {{"Name", kGet, 0, [folder](const HostCall&) { return folder->Name(); }},
                        {"Url", kGet, 0, [folder](const HostCall&) { return folder->Url(); }},
                        {"Files", kGet, 0,
                         [&host, folder](const HostCall&) { return FilesObject(host, folder); }},
                        {"Folders", kGet, 0,
                         [&host, folder](const HostCall&) { return FoldersObject(host, folder); }},
                        {"Delete", kCall, 0, [folder](const HostCall&) {
                             folder->Delete();
                             return HostValue();
                         }}}});
}

HostObject PageWindowsObject(FrontPage& host, const std::shared_ptr<WebWindow>& window) {
    const auto item = [&host, window](int index) {
        return PageWindowObject(host, window->PageWindowAt(index));
    };
    const auto add = [&host, window](const HostCall& call) {
        if (call.Has(0)) throw HostRefusal{E_NOTIMPL, "Only blank pages are opened here."};
        return PageWindowObject(host, window->AddPageWindow());
    };
    return MakeCollection(host.hooks, "PageWindows", 0,
                          [window] { return window->PageWindowCount(); }, item,
                          {{"Add", kCall, 1, add}});
}

// A member without arguments and answer.
HostMember Order(const char* name, std::function<void()> run) {
    // The real members take one optional argument.
    return {name, kCall, 1, [run = std::move(run)](const HostCall&) {
                run();
                return HostValue();
            }};
}

}  // namespace

HostObject PageWindowObject(FrontPage& host, std::shared_ptr<PageWindow> window) {
    return MakeObject(
        {host.hooks,
         "PageWindow",
         {{"Document", kGet, 0,
           [&host, window](const HostCall&) {
               return PageDocumentObject(host, window->Document());
           }},
          {"Caption", kGet, 0, [window](const HostCall&) { return window->Location(); }},
          {"ThemeProperties", kGet, 1,
           [window](const HostCall& call) { return window->ThemeProperties(call.Number(0)); }},
          {"ApplyTheme", kCall, 2,
           [window](const HostCall& call) {
               window->ApplyTheme(call.Text(0));
               return HostValue();
           }},
          {"Close", kCall, 1, [window](const HostCall& call) {
               window->Close(call.Flag(0, true));
               return true;
           }}}});
}

HostObject WebWindowObject(FrontPage& host, std::shared_ptr<WebWindow> window) {
    return MakeObject(
        {host.hooks, "WebWindow", {{"PageWindows", kGet, 0, [&host, window](const HostCall&) {
                                        return PageWindowsObject(host, window);
                                    }}}});
}

HostObject WebObject(FrontPage& host, std::shared_ptr<Web> web) {
    return MakeObject(
        {host.hooks,
         "Web",
         {{"Url", kGet, 0, [web](const HostCall&) { return web->Url(); }},
          {"Title", kGet, 0, [web](const HostCall&) { return web->Title(); }},
          {"RootFolder", kGet, 0,
           [&host, web](const HostCall&) { return FolderObject(host, web->RootFolder()); }},
          {"Themes", kGet, 0, [&host, web](const HostCall&) { return ThemesObject(host, web); }},
          {"Properties", kGet, 0,
           [&host, web](const HostCall&) { return PropertiesObject(host, web); }},
          {"ActiveWebWindow", kGet, 0,
           [&host, web](const HostCall&) { return WebWindowObject(host, web->ActiveWebWindow()); }},
          {"ThemeProperties", kGet, 1,
           [web](const HostCall& call) { return web->ThemeProperties(call.Number(0)); }},
          {"LocateFolder", kCall, 1,
           [&host, web](const HostCall& call) {
               return FolderOrNothing(host, web->LocateFolder(call.Text(0)));
           }},
          {"ApplyTheme", kCall, 2,
           [web](const HostCall& call) {
               web->ApplyTheme(call.Text(0));
               return HostValue();
           }},
          Order("Refresh", [web] { web->Refresh(); }),
          Order("RecalcHyperlinks", [web] { web->RecalcHyperlinks(); })}});
}

}  // namespace morpho::test
