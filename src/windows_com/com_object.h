#pragma once

#include <atomic>
#include <type_traits>

#include "windows_com/com_pointer.h"

namespace morpho {

// The objects of this module that are alive. The module may be unloaded when there is none.
long LiveObjects();

// Counts as one object while it lives.
class LiveObject {
  public:
    LiveObject();
    ~LiveObject();
    LiveObject(const LiveObject&) = delete;
    LiveObject& operator=(const LiveObject&) = delete;
};

// A COM object with these interfaces, each derived from IUnknown. It starts with one reference, the
// maker's (MakeComObject), and is deleted with the last.
template <class First, class... Others>
class ComObject : public First, public Others... {
  public:
    ComObject() = default;
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (object == nullptr) return E_POINTER;
        *object = FindInterface(iid);
        if (*object == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

  protected:
    virtual ~ComObject() = default;

    // This object as the interface; null when it has none of this kind. A class that answers to
    // another identifier, such as one that is known at run time only, overrides it.
    virtual void* FindInterface(REFIID iid) {
        void* found = nullptr;
        if (iid == IID_IUnknown) return static_cast<First*>(this);
        if constexpr (std::is_base_of_v<IDispatch, First>) {
            if (iid == IID_IDispatch) return static_cast<First*>(this);
        }
        ((found = iid == __uuidof(First) ? static_cast<First*>(this) : nullptr) || ... ||
         (found = iid == __uuidof(Others) ? static_cast<Others*>(this) : nullptr));
        return found;
    }

  private:
    std::atomic<ULONG> references_ = 1;
    LiveObject live_;
};

}  // namespace morpho
