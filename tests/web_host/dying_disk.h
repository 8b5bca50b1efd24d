#pragma once

#include <atomic>

#include "platform/run_time_error.h"
#include "support/this_computer.h"

namespace morpho {

// The disk of this machine, which can die: from a given change on no change is made any more, as if
// the program had been killed there. Or a single change fails. Reading goes on.
class DyingDisk : public test::RealDisk {
  public:
    void DieAfter(int changes) { left_ = changes; }
    // The change after these fails; those behind it succeed.
    void FailOnceAfter(int changes) {
        left_ = changes;
        failsOnce_ = true;
    }
    void Revive() {
        left_ = kImmortal;
        failsOnce_ = false;
    }
    bool IsDead() const { return left_ < 0; }

    std::unique_ptr<Folder> Open(std::string_view path) override;
    std::unique_ptr<Folder> OpenOrCreate(std::string_view path) override;

    // Every change of a folder comes here first.
    void Count() {
        if (left_ == kImmortal) return;
        const int left = --left_;
        if (left == -1 || (left < 0 && !failsOnce_))
            throw RunTimeError(ErrorNumber::kDeviceIo, "The disk has died.");
    }

  private:
    static constexpr int kImmortal = 1 << 30;
    std::atomic<int> left_ = kImmortal;
    bool failsOnce_ = false;
};

}  // namespace morpho
