#pragma once

#include "platform/environment.h"

namespace morpho {

// The environment of this process, but with a temporary folder of the program's own instead of the
// system's.
class DesktopEnvironment : public Environment {
  public:
    // `temporaryFolder` is a path of the disk.
    DesktopEnvironment(ComponentVersion version, const std::string& temporaryFolder);

    // TMP and TEMP are the temporary folder; all others are those of the process.
    std::string Variable(std::string_view name) const override;
    OsVersion Os() const override;
    ComponentVersion Version() const override { return version_; }
    std::string ModuleFolder() const override;
    std::string SystemMessage(std::int32_t code) const override;

  private:
    ComponentVersion version_;
    std::string temporaryFolder_;
};

// The folder of the running program, a path of the disk.
std::string ProgramFolder();

}  // namespace morpho
