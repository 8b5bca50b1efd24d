#pragma once

#include <concepts>
#include <cstddef>
#include <utility>

#include "windows_com/com.h"

namespace morpho {

// Holds one reference to a COM object, or none.
template <class T>
class ComPointer {
  public:
    ComPointer() = default;
    ComPointer(std::nullptr_t) {}
    // Adds a reference of its own.
    explicit ComPointer(T* object) : object_(object) {
        if (object_ != nullptr) object_->AddRef();
    }
    // Takes over the caller's reference.
    static ComPointer Adopt(T* object) {
        ComPointer pointer;
        pointer.object_ = object;
        return pointer;
    }

    ComPointer(const ComPointer& other) : ComPointer(other.object_) {}
    ComPointer(ComPointer&& other) noexcept : object_(other.Detach()) {}
    template <std::derived_from<T> U>
    ComPointer(const ComPointer<U>& other) : ComPointer(static_cast<T*>(other.Get())) {}
    ComPointer& operator=(ComPointer other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ComPointer() {
        if (object_ != nullptr) object_->Release();
    }

    T* Get() const { return object_; }
    T* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

    // Where a call puts a reference that it hands out. What was held before is released.
    T** Out() {
        *this = nullptr;
        return &object_;
    }
    void** OutVoid() { return reinterpret_cast<void**>(Out()); }
    // Hands the reference to the caller.
    T* Detach() { return std::exchange(object_, nullptr); }

    // Another interface of the same object; null when it has none of this kind.
    template <class U>
    ComPointer<U> As() const {
        ComPointer<U> other;
        if (object_ == nullptr || FAILED(object_->QueryInterface(__uuidof(U), other.OutVoid())))
            return nullptr;
        return other;
    }

  private:
    T* object_ = nullptr;
};

// A new object of a class that starts with one reference.
template <class T, class... Arguments>
ComPointer<T> MakeComObject(Arguments&&... arguments) {
    return ComPointer<T>::Adopt(new T(std::forward<Arguments>(arguments)...));
}

}  // namespace morpho
