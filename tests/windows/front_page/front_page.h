#pragma once

#include <memory>

#include "web_host/disk_application.h"
#include "web_host/disk_explorer.h"
#include "windows/front_page/host_object.h"

namespace morpho::test {

// FrontPage as its automation shows it to an add-in: objects that are called by name, over the
// stand-in host's. It must outlive all objects that it hands out, and they are for one thread.
struct FrontPage {
    DiskApplication& host;
    std::shared_ptr<HostHooks> hooks = std::make_shared<HostHooks>();
    // A selected picture gives a control range instead of a text range.
    bool selectsAsControl = false;
    // A command's button is listened to by so many.
    int listeners = 0;
};

HostObject ApplicationObject(FrontPage& host);
HostObject WebObject(FrontPage& host, std::shared_ptr<Web> web);
HostObject WebWindowObject(FrontPage& host, std::shared_ptr<WebWindow> window);
HostObject PageWindowObject(FrontPage& host, std::shared_ptr<PageWindow> window);
HostObject PageDocumentObject(FrontPage& host, std::shared_ptr<PageDocument> page);
HostObject CommandBarsObject(FrontPage& host);
HostObject ExplorerObject(FrontPage& host, std::shared_ptr<AutomationObject> explorer);

// Hands out the host's explorer by its class identifier, in this process, for as long as it lives.
class ExplorerClass {
  public:
    ExplorerClass(FrontPage& host, const std::string& classId);
    ~ExplorerClass();
    ExplorerClass(const ExplorerClass&) = delete;
    ExplorerClass& operator=(const ExplorerClass&) = delete;

  private:
    DWORD cookie_ = 0;
};

}  // namespace morpho::test
