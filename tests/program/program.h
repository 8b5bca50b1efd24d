#pragma once

#include <filesystem>
#include <map>
#include <string>

// Runs the program as a user would, in folders of its own.

struct Outcome {
    int status = -1;  // the exit status; -1 when it died of a signal
    std::string out;
    std::string err;
};

// Every file below a folder, by relative path, with its bytes.
using Tree = std::map<std::string, std::string>;

// A private home for one test: a copy of the sample web, and the folders that the program keeps its
// data in.
class Home {
  public:
    Home();
    ~Home();
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;

    std::filesystem::path Path(const std::string& name) const { return folder_ / name; }
    std::filesystem::path Web() const { return folder_ / "web"; }
    std::filesystem::path Theme(const std::string& name) const { return Web() / "_themes" / name; }
    // `arguments` as a shell would take them; "WEB" stands for the copy of the sample web, "OUT"
    // for a folder that is not there yet.
    Outcome Run(const std::string& arguments) const { return RunUnder("", arguments); }
    // The same as an argument of another command, such as one that kills it.
    Outcome RunUnder(const std::string& command, const std::string& arguments) const;

  private:
    std::filesystem::path folder_;
};

std::string ReadAll(const std::filesystem::path& file);
void WriteAll(const std::filesystem::path& file, const std::string& bytes);
Tree ReadTree(const std::filesystem::path& folder);
// The theme's own files: no subfolders.
Tree ReadFiles(const std::filesystem::path& folder);

// The file with all bytes of its colour tables set to 0, so that two GIFs compare equal when they
// differ in colours only.
std::string WithoutColours(std::string gif);
