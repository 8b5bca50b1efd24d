#pragma once

#include <functional>

namespace morpho {

// Holds back the settling of a slider that is moved by keys or wheel until the person pauses, so
// that a burst of steps costs one settling. Whatever else the person does comes after it. A toolkit
// derives from it to supply the timer.
class Settling {
  public:
    Settling() = default;
    virtual ~Settling() = default;
    Settling(const Settling&) = delete;
    Settling& operator=(const Settling&) = delete;

    // Settles once the pause is over; what another slider (`key`) still holds back goes first.
    void Hold(const void* key, std::function<bool()> settle);
    // Forgets what this slider holds back.
    void Drop(const void* key);
    // Settles now. A settling that is refused stays pending.
    void Flush();

  protected:
    // Longer than the gap between two repeats of a key held down.
    static constexpr int kPauseMilliseconds = 60;

    // The timer calls Flush when the pause is over. A start while it runs starts it anew.
    virtual void StartPause() = 0;
    virtual void EndPause() = 0;

  private:
    const void* key_ = nullptr;
    std::function<bool()> settle_;
};

}  // namespace morpho
