#pragma once

#include "web_host/disk.h"

namespace morpho {

// The disk of this machine; "Z:\" is "/" (see disk_path.h).
class LinuxDisk : public Disk {
  public:
    std::unique_ptr<Folder> Open(std::string_view path) override;
    std::unique_ptr<Folder> OpenOrCreate(std::string_view path) override;
    std::string Machine() const override;
    std::uint64_t Program() const override;
    bool IsRunning(std::uint64_t program) const override;
};

}  // namespace morpho
