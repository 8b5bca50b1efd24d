#include "windows/front_page/front_page.h"

namespace morpho::test {

namespace {

// The page in front; the host without windows has no other that an add-in could reach.
HostObject ActivePageWindow(FrontPage& host) {
    if (!host.host.ActiveDocument()) return nullptr;
    return MakeObject({host.hooks,
                       "PageWindow",
                       {{"Document", kGet, 0,
                         [&host](const HostCall&) {
                             return PageDocumentObject(host, host.host.ActiveDocument());
                         }},
                        {"Caption", kGet, 0,
                         [&host](const HostCall&) { return host.host.ActiveDocument()->Url(); }},
                        {"Refresh", kCall, 1, [&host](const HostCall&) {
                             host.host.RefreshViews();
                             return HostValue();
                         }}}});
}

HostObject LanguageSettingsObject(FrontPage& host) {
    return MakeObject(
        {host.hooks, "LanguageSettings", {{"LanguageID", kGet, 1, [&host](const HostCall& call) {
                                               const auto use =
                                                   static_cast<LanguageUse>(call.Number(0));
                                               return host.host.Languages()->LanguageId(use);
                                           }}}});
}

HostObject ActiveWeb(FrontPage& host) {
    std::shared_ptr<Web> web = host.host.ActiveWeb();
    return web ? WebObject(host, std::move(web)) : nullptr;
}

HostObject ActiveDocument(FrontPage& host) {
    std::shared_ptr<PageDocument> page = host.host.ActiveDocument();
    return page ? PageDocumentObject(host, std::move(page)) : nullptr;
}

HostObject ActiveWebWindow(FrontPage& host) {
    const auto web = host.host.ActiveWeb();
    return web ? WebWindowObject(host, web->ActiveWebWindow()) : nullptr;
}

}  // namespace

HostObject ApplicationObject(FrontPage& host) {
    return MakeObject(
        {host.hooks,
         "Application",
         {{"Version", kGet, 0, [&host](const HostCall&) { return host.host.Version(); }},
          {"ActiveWeb", kGet, 0, [&host](const HostCall&) { return ActiveWeb(host); }},
          {"ActiveDocument", kGet, 0, [&host](const HostCall&) { return ActiveDocument(host); }},
          {"ActivePageWindow", kGet, 0,
           [&host](const HostCall&) { return ActivePageWindow(host); }},
          {"ActiveWebWindow", kGet, 0, [&host](const HostCall&) { return ActiveWebWindow(host); }},
          {"LanguageSettings", kGet, 0,
           [&host](const HostCall&) { return LanguageSettingsObject(host); }},
          {"CommandBars", kGet, 0, [&host](const HostCall&) { return CommandBarsObject(host); }},
          {"MakeAbs", kCall, 2, [&host](const HostCall& call) {
               return host.host.MakeAbs(call.Text(0), call.Text(1));
           }}}});
}

}  // namespace morpho::test
