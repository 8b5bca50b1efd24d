#pragma once

#include <string>
#include <vector>

#include "platform/colorizer.h"
#include "platform/file_system.h"
#include "platform/run_time_error.h"

namespace morpho::test {

// Makes colorizers that work on a file system in a way that shows: each pass adds its parameters to
// the file's bytes, as in "|h40 s1 b0.5" or, once a quality was set, "|h40 s1 b0.5 q75".
class FakeColorizerFactory : public ColorizerFactory {
  public:
    explicit FakeColorizerFactory(FileSystem& files) : files_(files) {}

    // What all colorizers were asked, in order: "Create", "SourceFile C:\a.gif", "Hue 40",
    // "Colorize", "Release" and so on.
    std::vector<std::string> calls;
    bool creatable = true;
    // The nth Colorize from now on fails, once; 1 is the next, 0 none.
    int failAtPass = 0;

    std::unique_ptr<Colorizer> Create() override;

  private:
    FileSystem& files_;
};

}  // namespace morpho::test
