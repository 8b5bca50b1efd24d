#include "program.h"

#include <sys/wait.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>

namespace fs = std::filesystem;

void ProgramTest::StartAfresh() const {
    fs::remove_all(home_ / "web");
    fs::remove_all(home_ / "data");
    fs::copy(MORPHO_SOURCE_DIR "/samples/larkfell", home_ / "web", fs::copy_options::recursive);
}

Outcome ProgramTest::Run(const std::string& arguments, const std::string& under) const {
    // Parallel runs in one home must not share these files.
    static std::atomic<int> runs = 0;
    const std::string number = std::to_string(++runs);
    const std::string words =
        Replaced(Replaced(arguments, "WEB", home_ / "web"), "OUT", home_ / "out");
    const std::string line = "XDG_DATA_HOME=" + home_ / "data" +
                             " XDG_CACHE_HOME=" + home_ / "cache" + " " + under +
                             " " MORPHO_PROGRAM " " + words + " >" + (home_ / ("stdout" + number)) +
                             " 2>" + (home_ / ("stderr" + number));
    const int status = std::system(line.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, home_.Read("stdout" + number),
            home_.Read("stderr" + number)};
}

nlohmann::json ProgramTest::Report(const std::string& arguments) const {
    const Outcome outcome = Run(arguments + " --json");
    EXPECT_EQ(outcome.status, 0) << arguments << "\n" << outcome.err;
    return nlohmann::json::parse(outcome.out);
}

void ProgramTest::ExpectRefusal(const std::string& arguments, int status,
                                const std::string& says) const {
    SCOPED_TRACE(arguments);
    const morpho::Tree before = Web();
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, status);
    EXPECT_NE(outcome.err.find(says), std::string::npos) << outcome.err;
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_EQ(outcome.out, "");
    EXPECT_FALSE(home_.Has("out"));
    EXPECT_EQ(Web(), before);
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}
