#include "desktop/run_command_line.h"

#include <iostream>
#include <variant>

#include "desktop/apply_command.h"
#include "desktop/command_line.h"
#include "desktop/image_command.h"
#include "desktop/list_command.h"
#include "desktop/pictures_command.h"
#include "desktop/recolor_command.h"
#include "text/printable.h"

namespace morpho {

namespace {

// Runs the command that a request asks for. `warnings` gets one sentence a line, also when the
// command fails.
struct Runner {
    DesktopSystem& system;
    Screen& screen;
    std::string& warnings;

    void operator()(const TextRequest& request) const { std::cout << request.text; }
    void operator()(const WebRequest& request) const { screen.ShowWeb(request); }
    void operator()(const ThemeRequest& request) const { screen.ShowTheme(request); }
    void operator()(const ImageRequest& request) const {
        RequireImage(request);
        screen.ShowImage(request);
    }
    void operator()(const PicturesRequest& request) const {
        RecolorPictures(request, system, std::cout, warnings);
    }
    void operator()(const ListRequest& request) const {
        std::cout << List(request, system, warnings);
    }
    void operator()(const ApplyRequest& request) const { Apply(request, system, warnings); }
    void operator()(const RecolorRequest& request) const {
        std::cout << Recolor(request, system, screen, warnings);
    }
};

}  // namespace

int RunCommandLine(int argc, const char* const* argv, DesktopSystem& system, Screen& screen) {
    constexpr CommandError::Status kRefused = CommandError::Status::kRefused;
    std::string warnings;
    std::string failure;
    int status = 0;
    try {
        std::visit(Runner{system, screen, warnings}, ParseCommandLine(argc, argv, MORPHO_VERSION));
        std::cout.flush();
        if (!std::cout) throw CommandError(kRefused, "Standard output cannot be written.");
    } catch (const CommandError& error) {
        failure = error.what();
        status = error.ExitStatus();
    } catch (const std::exception& error) {
        failure = error.what();
        status = static_cast<int>(kRefused);
    }
    // Names of files of strangers are in them.
    std::cerr << Printable(warnings, LineEnds::kKept);
    if (status != 0) std::cerr << "morpho: " << Printable(failure, LineEnds::kKept) << "\n";
    return status;
}

}  // namespace morpho
