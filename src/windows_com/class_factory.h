#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "windows_com/com_pointer.h"

namespace morpho {

// A class that a module offers to COM.
struct ComClass {
    CLSID clsid;
    std::string_view progId;       // such as "Morpho.Colorizer"
    std::string_view description;  // for a person who looks at the registry
    std::function<ComPointer<IUnknown>()> make;
};

// For DllGetClassObject: the factory of the class with this identifier.
HRESULT GetClassObject(std::span<const ComClass> classes, REFCLSID clsid, REFIID iid,
                       void** object) noexcept;

}  // namespace morpho
