#pragma once

#include <unistd.h>

#include <utility>

namespace morpho {

// Owner of an open file descriptor; -1 is none.
class Descriptor {
  public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() { Close(); }

    int Number() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }
    // False when closing reports that something written was lost; the number is gone either way.
    bool Close() {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0;
    }
    int Release() { return std::exchange(number_, -1); }

  private:
    int number_;
};

}  // namespace morpho
