#pragma once

#include <atomic>

#include "linux/linux_disk.h"
#include "platform/run_time_error.h"

namespace morpho {

// The disk of this machine, which can die: from a given change on no change is made any more, as if
// the program had been killed there. Reading goes on.
class DyingDisk : public LinuxDisk {
  public:
    void DieAfter(int changes) { left_ = changes; }
    void Revive() { left_ = kImmortal; }
    bool IsDead() const { return left_ < 0; }

    std::unique_ptr<Folder> Open(std::string_view path) override;
    std::unique_ptr<Folder> OpenOrCreate(std::string_view path) override;

    // Every change of a folder comes here first.
    void Count() {
        if (left_ == kImmortal) return;
        if (--left_ < 0) throw RunTimeError(ErrorNumber::kDeviceIo, "The disk has died.");
    }

  private:
    static constexpr int kImmortal = 1 << 30;
    std::atomic<int> left_ = kImmortal;
};

}  // namespace morpho
