#pragma once

#include <cstdint>
#include <string_view>

#include "windows_com/com.h"

namespace morpho {

// The recolouring component as COM knows it. What its members mean: platform/colorizer.h.

inline constexpr CLSID kColorizerClass = {
    0x2142EA3D, 0xD6D1, 0x4C75, {0x99, 0x6B, 0xA6, 0xD9, 0x99, 0xAF, 0xD6, 0x5F}};
inline constexpr std::string_view kColorizerProgId = "Morpho.Colorizer";

// The order is that of the virtual table, which callers rely on.
struct IColorizer : IDispatch {
    virtual HRESULT STDMETHODCALLTYPE get_SourceFile(BSTR* path) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_SourceFile(BSTR path) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_DestinationFile(BSTR* path) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_DestinationFile(BSTR path) = 0;
    virtual HRESULT STDMETHODCALLTYPE Reserved4() = 0;
    virtual HRESULT STDMETHODCALLTYPE Reserved5() = 0;
    virtual HRESULT STDMETHODCALLTYPE Colorize() = 0;
    virtual HRESULT STDMETHODCALLTYPE Reserved7() = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Hue(double degrees) = 0;
    virtual HRESULT STDMETHODCALLTYPE Reserved9() = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Saturation(double factor) = 0;
    virtual HRESULT STDMETHODCALLTYPE Reserved11() = 0;
    virtual HRESULT STDMETHODCALLTYPE put_AuxParameter1(double value) = 0;
    virtual HRESULT STDMETHODCALLTYPE Reserved13() = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Brightness(double factor) = 0;
    virtual HRESULT STDMETHODCALLTYPE Reserved15() = 0;
    virtual HRESULT STDMETHODCALLTYPE put_AuxParameter2(double value) = 0;
    virtual HRESULT STDMETHODCALLTYPE Reserved17() = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Quality(std::int16_t factor) = 0;
};

}  // namespace morpho

__CRT_UUID_DECL(morpho::IColorizer, 0x45C3B9E5, 0xB16E, 0x480C, 0x8E, 0x5B, 0xAF, 0x17, 0xE8, 0x0E,
                0x40, 0x3B)
