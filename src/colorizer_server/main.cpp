// Colorizer.dll: what COM and regsvr32 call.

#include "colorizer_server/colorizer_object.h"
#include "windows_com/class_registration.h"
#include "windows_com/com_error.h"
#include "windows_system/windows_environment.h"

namespace {

const morpho::ComClass kClasses[] = {
    {morpho::kColorizerClass, morpho::kColorizerProgId, "Recolours GIF and JPEG pictures",
     [] { return morpho::MakeComObject<morpho::ColorizerObject>().As<IUnknown>(); }}};

}  // namespace

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, LPVOID* object) {
    return morpho::GetClassObject(kClasses, clsid, iid, object);
}

STDAPI DllCanUnloadNow() {
    return morpho::LiveObjects() == 0 ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
    return morpho::Guarded([] { morpho::RegisterClasses(kClasses, morpho::PathOfModule()); });
}

STDAPI DllUnregisterServer() {
    return morpho::Guarded([] { morpho::UnregisterClasses(kClasses); });
}
