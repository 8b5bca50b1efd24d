// Arguments, one a line, are taken or refused with a sentence.

#include <string>
#include <vector>

#include "desktop/command_line.h"
#include "fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::string> arguments{"morpho"};
    std::string_view rest = Text(data, size);
    while (!rest.empty()) {
        arguments.emplace_back(rest.substr(0, rest.find('\n')));
        rest.remove_prefix(std::min(rest.size(), arguments.back().size() + 1));
        // The system hands over no such argument.
        arguments.back().resize(std::min(arguments.back().size(), arguments.back().find('\0')));
    }
    std::vector<const char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(argument.c_str());
    try {
        morpho::ParseCommandLine(static_cast<int>(pointers.size()), pointers.data(), "1.0");
    } catch (const morpho::CommandError& error) {
        Require(*error.what() != '\0', "A refusal says nothing.");
    }
    return 0;
}
