#pragma once

#include <memory>
#include <utility>

#include "platform/front_page.h"
#include "shared/component.h"

namespace morpho {

// One add-in's connection to the host. The component has the host of the latest connection, and
// keeps it until the last connection ends.
class HostConnection {
  public:
    HostConnection(Component& component, std::shared_ptr<Application> application)
        : component_(component) {
        component_.application = std::move(application);
        ++component_.connections;
    }
    ~HostConnection() {
        if (--component_.connections == 0) component_.application.reset();
    }
    HostConnection(const HostConnection&) = delete;
    HostConnection& operator=(const HostConnection&) = delete;

  private:
    Component& component_;
};

}  // namespace morpho
