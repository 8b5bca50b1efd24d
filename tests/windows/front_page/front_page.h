#pragma once

#include <memory>

#include "web_host/disk_application.h"
#include "windows/front_page/host_object.h"

namespace morpho::test {

// FrontPage as its automation shows it to an add-in: objects that are called by name, over the
// stand-in host's. It must outlive all objects that it hands out, and they are for one thread.
struct FrontPage : HostObjects {
    explicit FrontPage(DiskApplication& application) : standIn(application) {}

    DiskApplication& standIn;
    // A selected picture gives a control range instead of a text range.
    bool selectsAsControl = false;
    // The page in front has changes that are not saved.
    bool hasUnsavedChanges = false;
};

HostObject ApplicationObject(FrontPage& host);
HostObject WebObject(FrontPage& host, std::shared_ptr<Web> web);
HostObject WebWindowObject(FrontPage& host, std::shared_ptr<WebWindow> window);
HostObject PageDocumentObject(FrontPage& host, std::shared_ptr<PageDocument> page);
HostObject CommandBarsObject(FrontPage& host);

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
