// Runs a fuzz target on files, without a fuzzer: on those that are named, and on all of a folder.
// usage: replay_TARGET FILE|FOLDER...

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "fuzz/fuzz.h"

namespace {

void Run(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    std::fprintf(stderr, "%s\n", file.c_str());  // the last one is the one that failed
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
    int files = 0;
    for (int index = 1; index < argc; ++index) {
        if (!std::filesystem::is_directory(argv[index])) {
            Run(argv[index]);
            ++files;
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(argv[index])) {
            Run(entry.path());
            ++files;
        }
    }
    if (files == 0) std::fprintf(stderr, "There is no input.\n");
    return files == 0 ? 2 : 0;
}
