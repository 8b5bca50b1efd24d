#include "qt/settling.h"

#include <utility>

namespace morpho {

namespace {

constexpr int kPauseMilliseconds =
    60;  // longer than the gap between two repeats of a key held down

}  // namespace

Settling::Settling() {
    timer_.setSingleShot(true);
    timer_.setInterval(kPauseMilliseconds);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Flush(); });
}

void Settling::Hold(const void* key, std::function<bool()> settle) {
    if (key_ != key) Flush();
    key_ = key;
    settle_ = std::move(settle);
    timer_.start();
}

void Settling::Drop(const void* key) {
    if (key_ != key) return;
    timer_.stop();
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
