// Morpho.dll: what COM and regsvr32 call.

#include "windows_com/com_error.h"
#include "windows_com/com_object.h"
#include "windows_server/add_in_classes.h"

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, LPVOID* object) {
    return morpho::GetClassObject(morpho::ClassesOfAddIns(), clsid, iid, object);
}

STDAPI DllCanUnloadNow() {
    return morpho::LiveObjects() == 0 ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
    return morpho::Guarded(morpho::RegisterAddIns);
}

STDAPI DllUnregisterServer() {
    return morpho::Guarded(morpho::UnregisterAddIns);
}
