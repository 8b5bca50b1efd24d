// The morpho program on Linux.

#include <csignal>

#include "desktop/run_command_line.h"
#include "program/qt_screen.h"

int main(int argc, char** argv) {
    // A file over the user's size limit is an error like a full disk; it must not kill the program.
    std::signal(SIGXFSZ, SIG_IGN);
    morpho::LinuxSystem system;
    morpho::QtScreen screen(system);
    return morpho::RunCommandLine(argc, argv, system, screen);
}
