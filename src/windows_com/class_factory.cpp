#include "windows_com/class_factory.h"

#include <algorithm>

#include "windows_com/com_error.h"
#include "windows_com/com_object.h"

namespace morpho {

namespace {

class ClassFactory : public ComObject<IClassFactory> {
  public:
    explicit ClassFactory(std::function<ComPointer<IUnknown>()> make) : make_(std::move(make)) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        if (outer != nullptr) return CLASS_E_NOAGGREGATION;
        return Guarded([&] { return make_()->QueryInterface(iid, object); });
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        // As a reference does: a factory that is alive keeps the module loaded.
        if (lock != FALSE)
            AddRef();
        else
            Release();
        return S_OK;
    }

  private:
    std::function<ComPointer<IUnknown>()> make_;
};

}  // namespace

HRESULT GetClassObject(std::span<const ComClass> classes, REFCLSID clsid, REFIID iid,
                       void** object) noexcept {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    const auto found = std::ranges::find(classes, clsid, &ComClass::clsid);
    if (found == classes.end()) return CLASS_E_CLASSNOTAVAILABLE;
    return Guarded(
        [&] { return MakeComObject<ClassFactory>(found->make)->QueryInterface(iid, object); });
}

}  // namespace morpho
