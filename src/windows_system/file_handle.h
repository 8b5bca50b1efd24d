#pragma once

#include <utility>

#include "windows_system/win32.h"

namespace morpho {

// Owner of an open handle of a file or folder.
class FileHandle {
  public:
    explicit FileHandle(HANDLE handle = INVALID_HANDLE_VALUE) : handle_(handle) {}
    FileHandle(FileHandle&& other) noexcept
        : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
    FileHandle& operator=(FileHandle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~FileHandle() { Close(); }

    HANDLE Get() const { return handle_; }
    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    void Close() {
        if (IsOpen()) ::CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
    }

  private:
    HANDLE handle_;
};

}  // namespace morpho
