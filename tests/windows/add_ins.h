#pragma once

#include <string>
#include <vector>

#include "windows/front_page/front_page.h"

namespace morpho::test {

// The add-ins that the host is to load at its start: the keys of this registry of the user.
std::vector<std::wstring> AddInsToLoad();

struct AddInContract;

enum class CallsBy { kTable, kName };

// One add-in, created by its registered name and connected as the host does.
class ConnectedAddIn {
  public:
    ConnectedAddIn(FrontPage& host, const std::wstring& progId, CallsBy how = CallsBy::kTable);
    // Disconnects.
    ~ConnectedAddIn();
    ConnectedAddIn(const ConnectedAddIn&) = delete;
    ConnectedAddIn& operator=(const ConnectedAddIn&) = delete;

    void ConnectAgain();

  private:
    // The order of the contract's members.
    enum class Event { kConnection = 1, kDisconnection };
    void Tell(Event event);

    FrontPage& host_;
    CallsBy how_;
    AddInContract* addIn_ = nullptr;
    HostObject application_;
    HostObject instance_;
};

}  // namespace morpho::test
