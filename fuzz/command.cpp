// Arguments, one a line, are refused with a sentence, or run as a batch on a small web: nothing
// beside the folder that it runs in changes, and the web is whole afterwards.

#include <iostream>

#include "desktop/command_line.h"
#include "desktop/run_command_line.h"
#include "fuzz/command_check.h"
#include "fuzz/command_place.h"
#include "fuzz/fuzz.h"
#include "program/linux_system.h"

namespace {

using namespace morpho;

std::vector<std::string> ArgumentsIn(std::string_view rest) {
    std::vector<std::string> arguments{"morpho"};
    while (!rest.empty()) {
        arguments.emplace_back(rest.substr(0, rest.find('\n')));
        rest.remove_prefix(std::min(rest.size(), arguments.back().size() + 1));
        // The system hands over no such argument.
        arguments.back().resize(std::min(arguments.back().size(), arguments.back().find('\0')));
    }
    return arguments;
}

// Whether the arguments name no file outside of the current folder: the program writes where its
// user says. What follows the name of a theme's option may hold anything.
bool StaysInFolder(const std::vector<std::string>& arguments) {
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const std::string& before = arguments[i - 1];
        if (argument == "--") return false;
        if (before == "--theme" || before == "--save-as" || before == "--title") continue;
        const bool isOption = argument.starts_with("-");
        if (argument.find("..") != argument.npos || argument.starts_with("/") ||
            (isOption && argument.find('/') != argument.npos))
            return false;
    }
    return true;
}

class NoScreen : public Screen {
  public:
    void ShowWeb(const WebRequest& /*request*/) override {}
    void ShowTheme(const ThemeRequest& /*request*/) override {}
    void ShowImage(const ImageRequest& /*request*/) override {}
    void Draw(Form& /*form*/, const std::filesystem::path& /*picture*/) override {}
};

// Takes what the program tells, and drops it.
class Dropped : public std::streambuf {
    int_type overflow(int_type byte) override { return traits_type::not_eof(byte); }
    std::streamsize xsputn(const char* /*bytes*/, std::streamsize count) override { return count; }
};

// The current folder, for as long as a command runs: the fuzzer's own files have relative paths.
class CurrentFolder {
  public:
    explicit CurrentFolder(const std::filesystem::path& folder) {
        std::filesystem::current_path(folder);
    }
    ~CurrentFolder() { std::filesystem::current_path(earlier_); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

  private:
    std::filesystem::path earlier_ = std::filesystem::current_path();
};

int Run(int count, const char* const* arguments, const std::filesystem::path& folder) {
    const CurrentFolder current(folder);
    LinuxSystem system;
    NoScreen screen;
    return RunCommandLine(count, arguments, system, screen);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Never deleted: the streams are flushed at the program's very end.
    static Dropped& dropped = *new Dropped;
    std::cout.rdbuf(&dropped);
    std::cerr.rdbuf(&dropped);
    static CommandPlace place;
    const std::vector<std::string> arguments = ArgumentsIn(Text(data, size));
    std::vector<const char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(argument.c_str());
    const int count = static_cast<int>(pointers.size());
    try {
        const Request request = ParseCommandLine(count, pointers.data(), "1.0");
        if (!StaysInFolder(arguments)) return 0;
        place.MakeFresh();
        const int status = Run(count, pointers.data(), place.Here());
        CheckCommand(request, status, place.Before(), place.Now());
    } catch (const CommandError& error) {
        Require(*error.what() != '\0', "A refusal says nothing.");
    }
    return 0;
}
