// The morpho program: reads the command line and runs the command.

#include <iostream>
#include <variant>

#include "desktop/commands/apply_command.h"
#include "desktop/commands/command_line.h"
#include "desktop/commands/list_command.h"
#include "desktop/commands/recolor_command.h"
#include "desktop/commands/window_command.h"
#include "platform/run_time_error.h"

namespace {

using namespace morpho;

struct Runner {
    void operator()(const TextRequest& request) const { std::cout << request.text; }
    void operator()(const ThemeRequest& request) const { ShowThemeWindow(request); }
    void operator()(const ListRequest& request) const {
        std::string warnings;
        std::cout << List(request, warnings);
        std::cerr << warnings;
    }
    void operator()(const ApplyRequest& request) const { std::cerr << Apply(request); }
    void operator()(const RecolorRequest& request) const {
        std::string warnings;
        std::cout << Recolor(request, warnings);
        std::cerr << warnings;
    }
};

int Fail(const std::string& sentence, int status) {
    std::cerr << "morpho: " << sentence << "\n";
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    constexpr int kRefused = static_cast<int>(CommandError::Status::kRefused);
    try {
        std::visit(Runner{}, ParseCommandLine(argc, argv, MORPHO_VERSION));
        std::cout.flush();
        return std::cout ? 0 : Fail("Standard output cannot be written.", kRefused);
    } catch (const CommandError& error) {
        return Fail(error.what(), error.ExitStatus());
    } catch (const std::exception& error) {
        return Fail(error.what(), kRefused);
    }
}
