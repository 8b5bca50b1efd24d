#pragma once

#include "platform/environment.h"

namespace morpho {

// The environment of this process.
class WindowsEnvironment : public Environment {
  public:
    // TMP and TEMP are `temporaryFolder` unless that is empty.
    explicit WindowsEnvironment(ComponentVersion version, std::string temporaryFolder = {});

    std::string Variable(std::string_view name) const override;
    OsVersion Os() const override;
    ComponentVersion Version() const override { return version_; }
    std::string ModuleFolder() const override;
    std::string SystemMessage(std::int32_t code) const override;

  private:
    ComponentVersion version_;
    std::string temporaryFolder_;
};

// The value of a variable of this process, UTF-8; empty when it is not set.
std::string ProcessVariable(std::string_view name);

// The program or DLL that this code was linked into; and its folder, without a trailing "\".
std::string PathOfModule();
std::string FolderOfModule();

}  // namespace morpho
