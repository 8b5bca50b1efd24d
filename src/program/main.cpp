// The morpho program: reads the command line and runs the command.

#include <csignal>
#include <iostream>
#include <variant>

#include "platform/run_time_error.h"
#include "program/apply_command.h"
#include "program/command_line.h"
#include "program/image_command.h"
#include "program/list_command.h"
#include "program/pictures_command.h"
#include "program/recolor_command.h"
#include "program/web_command.h"
#include "program/window_command.h"

namespace {

using namespace morpho;

// Runs the command that a request asks for. `warnings` gets one sentence a line, also when the
// command fails.
struct Runner {
    std::string& warnings;

    void operator()(const TextRequest& request) const { std::cout << request.text; }
    void operator()(const WebRequest& request) const { ShowWebWindow(request); }
    void operator()(const ThemeRequest& request) const { ShowThemeWindow(request); }
    void operator()(const ImageRequest& request) const { ShowImageWindow(request); }
    void operator()(const PicturesRequest& request) const {
        RecolorPictures(request, std::cout, warnings);
    }
    void operator()(const ListRequest& request) const { std::cout << List(request, warnings); }
    void operator()(const ApplyRequest& request) const { Apply(request, warnings); }
    void operator()(const RecolorRequest& request) const {
        std::cout << Recolor(request, warnings);
    }
};

}  // namespace

int main(int argc, char** argv) {
    constexpr CommandError::Status kRefused = CommandError::Status::kRefused;
    // A file over the user's size limit is an error like a full disk; it must not kill the program.
    std::signal(SIGXFSZ, SIG_IGN);
    std::string warnings;
    std::string failure;
    int status = 0;
    try {
        std::visit(Runner{warnings}, ParseCommandLine(argc, argv, MORPHO_VERSION));
        std::cout.flush();
        if (!std::cout) throw CommandError(kRefused, "Standard output cannot be written.");
    } catch (const CommandError& error) {
        failure = error.what();
        status = error.ExitStatus();
    } catch (const std::exception& error) {
        failure = error.what();
        status = static_cast<int>(kRefused);
    }
    std::cerr << warnings;
    if (status != 0) std::cerr << "morpho: " << failure << "\n";
    return status;
}
