#include "forms/settling.h"

#include <utility>

namespace morpho {

void Settling::Hold(const void* key, std::function<bool()> settle) {
    if (key_ != key) Flush();
    key_ = key;
    settle_ = std::move(settle);
    StartPause();
}

void Settling::Drop(const void* key) {
    if (key_ != key) return;
    EndPause();
    key_ = nullptr;
    settle_ = nullptr;
}

void Settling::Flush() {
    if (!settle_) return;
    const void* const key = key_;
    const std::function<bool()> settle = settle_;
    Drop(key);
    // A slider may be out of reach for a while, for instance in a frame that is disabled during a
    // long operation.
    if (!settle() && !settle_) Hold(key, settle);
}

}  // namespace morpho
