#pragma once

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "support/temporary_folder.h"

struct Outcome {
    int status = -1;  // the exit status; -1 when it died of a signal
    std::string out;
    std::string err;
};

// Runs the program as a user would, in folders of its own: a copy of the sample web ("web"), and
// the folders that the program keeps its data in ("data", "cache").
class ProgramTest : public testing::Test {
  protected:
    ProgramTest() { StartAfresh(); }
    // Whatever it did, it leaves none of its private folders.
    ~ProgramTest() override { EXPECT_EQ(home_.Below("cache/morpho"), morpho::Tree()); }

    // The web and the user's data as they were at first.
    void StartAfresh() const;
    // `arguments` as a shell would take them; "WEB" stands for the copy of the sample web, "OUT"
    // for a folder "out" that is not there yet. `under` is another command to run it, such as one
    // that kills it.
    Outcome Run(const std::string& arguments, const std::string& under = "") const;
    // What a run that must succeed prints with --json.
    nlohmann::json Report(const std::string& arguments) const;
    // Such a run must end with this status and one sentence that has these words, and leave the web
    // as it was.
    void ExpectRefusal(const std::string& arguments, int status, const std::string& says) const;

    morpho::Tree Web() const { return home_.Below("web"); }
    // The theme's own files: no subfolders.
    morpho::Tree Theme(const std::string& name) const {
        return home_.FilesIn("web/_themes/" + name);
    }

    const morpho::TemporaryFolder home_;
};

std::string Replaced(std::string text, const std::string& from, const std::string& to);
