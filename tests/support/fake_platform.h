#pragma once

#include "formats/windows_1252_code_page.h"
#include "forms/headless_toolkit.h"
#include "platform/platform.h"
#include "shared/component.h"
#include "shared/memory_clipboard.h"
#include "support/fake_application.h"
#include "support/fake_automation.h"
#include "support/fake_colorizer.h"
#include "support/fake_file_system.h"
#include "support/fake_registry.h"
#include "support/fake_surroundings.h"

namespace morpho::test {

// A whole world in memory for modules and forms under test. At the start the log is off, the host
// has an open web without themes, and C:\Temp is the temporary folder.
struct FakePlatform {
    FakeRegistry registry;
    FakeFileSystem files;
    Windows1252CodePage codePage;
    FakeShell shell;
    FakeClock clock;
    FakeEnvironment environment;
    FakeResources resources;
    FakeColorizerFactory colorizers{files};
    HeadlessToolkit toolkit;
    FakeApplication application{files};
    FakeAutomation automation;
    MemoryClipboard clipboard;

    Platform platform{registry,  files,      codePage, shell,      clock,    environment,
                      resources, colorizers, toolkit,  automation, clipboard};
    Component component;
    Program program{platform, component};

    FakePlatform() {
        // A test owns the host as a part of this object, and never loses it.
        component.application = {std::shared_ptr<void>(), &application};
        files.PutFolder("C:\\Temp");
    }
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    // Sends the log to the debugger output from now on.
    void TurnLogOn() { component.logMode = 2; }
    // The log's lines so far, without the time in front.
    std::vector<std::string> LogLines() const {
        std::vector<std::string> lines;
        for (const std::string& line : shell.debugLines)
            lines.push_back(line.substr(9));
        return lines;
    }
};

}  // namespace morpho::test
