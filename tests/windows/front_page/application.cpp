#include "windows/front_page/front_page.h"

namespace morpho::test {

namespace {

// The page in front; the host without windows has no other that an add-in could reach.
HostObject ActivePageWindow(FrontPage& host) {
    const std::shared_ptr<PageDocument> page = host.standIn.ActiveDocument();
    if (!page) return nullptr;
    return host.Object("PageWindow",
                       {Get("Document", [&host, page] { return PageDocumentObject(host, page); }),
                        Get("Caption", [page] { return page->Url(); }),
                        Get("IsDirty", [&host] { return host.hasUnsavedChanges; }),
                        Order("Refresh", [&host] { host.standIn.RefreshViews(); })});
}

HostObject LanguageSettingsObject(FrontPage& host) {
    const auto language = [&host](const CallArguments& call) {
        const auto use = static_cast<LanguageUse>(IntegerOf(call[0]));
        return host.standIn.Languages()->LanguageId(use);
    };
    return host.Object("LanguageSettings", {{"LanguageID", 1, {}, language}});
}

HostObject ActiveWeb(FrontPage& host) {
    std::shared_ptr<Web> web = host.standIn.ActiveWeb();
    return web ? WebObject(host, std::move(web)) : nullptr;
}

HostObject ActiveDocument(FrontPage& host) {
    std::shared_ptr<PageDocument> page = host.standIn.ActiveDocument();
    return page ? PageDocumentObject(host, std::move(page)) : nullptr;
}

HostObject ActiveWebWindow(FrontPage& host) {
    const auto web = host.standIn.ActiveWeb();
    return web ? WebWindowObject(host, web->ActiveWebWindow()) : nullptr;
}

}  // namespace

HostObject ApplicationObject(FrontPage& host) {
    const auto makeAbs = [&host](const CallArguments& call) {
        return host.standIn.MakeAbs(TextOf(call[0]), TextOf(call[1]));
    };
    return host.Object("Application",
                       {Get("Version", [&host] { return host.standIn.Version(); }),
                        Get("ActiveWeb", [&host] { return ActiveWeb(host); }),
                        Get("ActiveDocument", [&host] { return ActiveDocument(host); }),
                        Get("ActivePageWindow", [&host] { return ActivePageWindow(host); }),
                        Get("ActiveWebWindow", [&host] { return ActiveWebWindow(host); }),
                        Get("LanguageSettings", [&host] { return LanguageSettingsObject(host); }),
                        Get("CommandBars", [&host] { return CommandBarsObject(host); }),
                        Call("MakeAbs", 2, makeAbs)});
}

}  // namespace morpho::test
