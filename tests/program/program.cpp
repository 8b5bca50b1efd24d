#include "program.h"

#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

void ReplaceWord(std::string& text, const std::string& word, const std::string& value) {
    for (auto at = text.find(word); at != std::string::npos;
         at = text.find(word, at + value.size())) {
        text.replace(at, word.size(), value);
    }
}

// A table of 2^(n+1) colours where the lowest three bits of `flags` are n, if the highest is set.
std::size_t TableBytes(unsigned char flags) {
    return (flags & 0x80) != 0 ? 3u << ((flags & 7) + 1) : 0;
}

}  // namespace

Home::Home() {
    std::string name = (fs::temp_directory_path() / "morpho-test-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for the test");
    folder_ = name;
    fs::copy(fs::path(MORPHO_SOURCE_DIR) / "samples/larkfell", Web(), fs::copy_options::recursive);
}

Home::~Home() {
    fs::remove_all(folder_);
}

Outcome Home::RunUnder(const std::string& command, const std::string& arguments) const {
    std::string words = arguments;
    ReplaceWord(words, "WEB", Web().string());
    ReplaceWord(words, "OUT", Path("out").string());
    // Parallel runs in one home must not share these files.
    static std::atomic<int> runs = 0;
    const std::string number = std::to_string(++runs);
    const fs::path out = Path("stdout" + number);
    const fs::path err = Path("stderr" + number);
    const std::string line = "XDG_DATA_HOME=" + Path("data").string() +
                             " XDG_CACHE_HOME=" + Path("cache").string() + " " + command + " " +
                             MORPHO_PROGRAM + " " + words + " >" + out.string() + " 2>" +
                             err.string();
    const int status = std::system(line.c_str());
    Outcome outcome{WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadAll(out), ReadAll(err)};
    fs::remove(out);
    fs::remove(err);
    return outcome;
}

std::string ReadAll(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void WriteAll(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

Tree ReadTree(const fs::path& folder) {
    Tree tree;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        tree[name] = entry.is_regular_file() ? ReadAll(entry.path()) : "";
    }
    return tree;
}

Tree ReadFiles(const fs::path& folder) {
    Tree tree;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.is_regular_file()) tree[entry.path().filename().string()] = ReadAll(entry.path());
    }
    return tree;
}

std::string WithoutColours(std::string gif) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(gif.at(at)); };
    const auto blank = [&](std::size_t at, std::size_t size) { gif.replace(at, size, size, '\0'); };
    std::size_t at = 13;
    blank(at, TableBytes(byte(10)));
    at += TableBytes(byte(10));
    while (byte(at) != 0x3B) {
        if (byte(at) == 0x21) {
            at += 2;  // extension and its label
        } else {
            const std::size_t table = TableBytes(byte(at + 9));
            blank(at + 10, table);
            at += 10 + table + 1;  // descriptor, table, code size
        }
        while (byte(at) != 0)
            at += byte(at) + 1u;
        ++at;
    }
    return gif;
}
