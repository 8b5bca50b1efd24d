#include "colorizer_server/colorizer_object.h"

#include "windows_com/bstr.h"
#include "windows_com/com_error.h"

namespace morpho {

ColorizerObject::ColorizerObject() {
    DeclareFiles();
    Members().Method("Colorize", 0, [this](const CallArguments&) {
        colorizer_.Colorize();
        return Variant();
    });
    DeclareParameter("Hue", &Colorizer::SetHue);
    DeclareParameter("Saturation", &Colorizer::SetSaturation);
    DeclareParameter("AuxParameter1", &Colorizer::SetAuxParameter1);
    DeclareParameter("Brightness", &Colorizer::SetBrightness);
    DeclareParameter("AuxParameter2", &Colorizer::SetAuxParameter2);
    Members().Property("Quality", 0, {}, [this](const CallArguments& given) {
        colorizer_.SetQuality(ShortOf(given[0]));
        return Variant();
    });
}

void ColorizerObject::DeclareFiles() {
    Members()
        .Property(
            "SourceFile", 0, [this](const CallArguments&) { return colorizer_.SourceFile(); },
            [this](const CallArguments& given) {
                colorizer_.SetSourceFile(TextOf(given[0]));
                return Variant();
            })
        .Property(
            "DestinationFile", 0,
            [this](const CallArguments&) { return colorizer_.DestinationFile(); },
            [this](const CallArguments& given) {
                colorizer_.SetDestinationFile(TextOf(given[0]));
                return Variant();
            });
}

void ColorizerObject::DeclareParameter(std::string_view name, void (Colorizer::*set)(double)) {
    Members().Property(name, 0, {}, [this, set](const CallArguments& given) {
        (colorizer_.*set)(NumberOf(given[0]));
        return Variant();
    });
}

HRESULT ColorizerObject::get_SourceFile(BSTR* path) {
    if (path == nullptr) return E_POINTER;
    return Guarded([&] { *path = Bstr(colorizer_.SourceFile()).Detach(); });
}

HRESULT ColorizerObject::put_SourceFile(BSTR path) {
    return Guarded([&] { colorizer_.SetSourceFile(TextOf(path)); });
}

HRESULT ColorizerObject::get_DestinationFile(BSTR* path) {
    if (path == nullptr) return E_POINTER;
    return Guarded([&] { *path = Bstr(colorizer_.DestinationFile()).Detach(); });
}

HRESULT ColorizerObject::put_DestinationFile(BSTR path) {
    return Guarded([&] { colorizer_.SetDestinationFile(TextOf(path)); });
}

HRESULT ColorizerObject::Colorize() {
    return Guarded([&] { colorizer_.Colorize(); });
}

HRESULT ColorizerObject::put_Hue(double degrees) {
    return Guarded([&] { colorizer_.SetHue(degrees); });
}

HRESULT ColorizerObject::put_Saturation(double factor) {
    return Guarded([&] { colorizer_.SetSaturation(factor); });
}

HRESULT ColorizerObject::put_AuxParameter1(double value) {
    return Guarded([&] { colorizer_.SetAuxParameter1(value); });
}

HRESULT ColorizerObject::put_Brightness(double factor) {
    return Guarded([&] { colorizer_.SetBrightness(factor); });
}

HRESULT ColorizerObject::put_AuxParameter2(double value) {
    return Guarded([&] { colorizer_.SetAuxParameter2(value); });
}

HRESULT ColorizerObject::put_Quality(std::int16_t factor) {
    return Guarded([&] { colorizer_.SetQuality(factor); });
}

HRESULT ColorizerObject::InterfaceSupportsErrorInfo(REFIID iid) {
    return iid == __uuidof(IColorizer) ? S_OK : S_FALSE;
}

}  // namespace morpho
