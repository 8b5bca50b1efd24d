#pragma once

#include <memory>
#include <string>

namespace morpho {

class Application;
struct Platform;

// The state that both add-ins and both editors of the loaded component share. The one that started
// last has set it.
struct Component {
    int logMode = 0;        // 0 off, 1 daily file, 2 debugger output; others are off
    std::string logPrefix;  // "TM" or "IM", before the date in the log file's name
    std::string logFolder;  // with a trailing "\"; empty until first needed
    int logIndent = 0;      // nesting level of log lines
    std::shared_ptr<Application> application;  // the host; null until it is connected
    int connections = 0;                       // of add-ins; see HostConnection
    std::string explorerProgId;                // the host's explorer, for late-bound calls
    std::string editorProgId;
    std::string webSite;  // address or document the About box links to; empty: no link
};

// What every module and window gets: the access to the outside and the shared state. Both outlive
// every window.
struct Program {
    Platform& platform;
    Component& component;
};

}  // namespace morpho
