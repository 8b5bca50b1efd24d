// bench_recolor_files FOLDER PASSES BRIGHTNESS SATURATION HUE FILE...: recolours each file into the
// folder, in one process, the passes after the first from the new file to itself.

#include <cstdio>
#include <cstdlib>

#include "colorizer/recolorer.h"

namespace fs = std::filesystem;

int main(int argumentCount, char** arguments) try {
    if (argumentCount < 7) {
        std::fputs("usage: bench_recolor_files FOLDER PASSES BRIGHTNESS SATURATION HUE FILE...\n",
                   stderr);
        return 2;
    }
    const fs::path folder = arguments[1];
    const int passes = std::atoi(arguments[2]);
    const colorizer::Adjustment adjustment{std::atof(arguments[3]), std::atof(arguments[4]),
                                           std::atof(arguments[5])};
    for (int index = 6; index < argumentCount; ++index) {
        const fs::path source = arguments[index], destination = folder / source.filename();
        colorizer::Recolorer recolorer;
        recolorer.Recolor(source, destination, adjustment);
        for (int pass = 1; pass < passes; ++pass)
            recolorer.Recolor(destination, destination, adjustment);
    }
    return 0;
} catch (const colorizer::Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
