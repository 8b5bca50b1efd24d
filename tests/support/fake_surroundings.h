#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/resources.h"
#include "platform/shell.h"

namespace morpho::test {

// Remembers what it was asked to start and to say.
class FakeShell : public Shell {
  public:
    std::vector<std::string> started;  // "Winhlp32.exe a.hlp", "open C:\a.htm -x, show 1"
    std::vector<std::string> debugLines;
    int result = 42;  // what both ways to start something answer

    int WinExec(std::string_view commandLine, int /*showCommand*/) override {
        started.emplace_back(commandLine);
        return result;
    }
    int Open(std::string_view verb, std::string_view file, std::string_view parameters,
             int showCommand) override {
        started.push_back(std::string(verb) + ' ' + std::string(file) + ' ' +
                          std::string(parameters) + ", show " + std::to_string(showCommand));
        return result;
    }
    void DebugOutput(std::string_view line) override { debugLines.emplace_back(line); }
};

// Stands still until a test sets it.
class FakeClock : public Clock {
  public:
    LocalTime now{2004, 12, 31, 9, 5, 7};
    LocalTime Now() const override { return now; }
};

class FakeEnvironment : public Environment {
  public:
    std::map<std::string, std::string, std::less<>> variables{{"TMP", "C:\\Temp"}};
    OsVersion os{kWindowsNtPlatform, 5, 1, 2600, "Service Pack 2"};
    ComponentVersion version{"Morpho", 1, 4, 17, ""};

    std::string Variable(std::string_view name) const override {
        const auto variable = variables.find(name);
        return variable == variables.end() ? std::string() : variable->second;
    }
    OsVersion Os() const override { return os; }
    ComponentVersion Version() const override { return version; }
    std::string ModuleFolder() const override { return "C:\\Program Files\\Morpho"; }
    std::string SystemMessage(std::int32_t code) const override {
        return "System message " + std::to_string(code) + ".\r\n";
    }
};

// Has what a test puts in.
class FakeResources : public Resources {
  public:
    std::map<std::pair<std::string, int>, std::string> data{{{"COLORBAND", 101}, "colour band"}};
    std::map<int, std::string> strings{
        {101, "Step 1\n\nStep 2"},
        {102, "Theme \"%1\" modified.\r\nDo you wish to save the changes ?"}};

    std::span<const std::byte> Data(std::string_view type, int id) const override {
        const auto resource = data.find({std::string(type), id});
        if (resource == data.end()) return {};
        return std::as_bytes(std::span(resource->second));
    }
    std::string String(int id) const override { return strings.at(id); }
};

}  // namespace morpho::test
