#pragma once

#include <QTimer>
#include <functional>

namespace morpho {

// Holds back the settling of a slider that is moved by keys or wheel until the person pauses, so
// that a burst of steps costs one settling. Whatever else the person does comes after it.
class Settling {
  public:
    Settling();

    // Settles once the pause is over; what another slider (`key`) still holds back goes first.
    void Hold(const void* key, std::function<bool()> settle);
    // Forgets what this slider holds back.
    void Drop(const void* key);
    // Settles now. A settling that is refused stays pending.
    void Flush();

  private:
    QTimer timer_;
    const void* key_ = nullptr;
    std::function<bool()> settle_;
};

}  // namespace morpho
