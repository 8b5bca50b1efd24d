#pragma once

#include "colorizer_adapter/colorizer_adapter.h"
#include "colorizer_server/colorizer_interface.h"
#include "windows_com/dispatch_object.h"
#include "windows_system/windows_picture_disk.h"

namespace morpho {

// The recolouring component as a COM object. It describes its failures to callers of the virtual
// table (IErrorInfo) and to those by name alike.
class ColorizerObject : public DispatchObject<IColorizer, ISupportErrorInfo> {
  public:
    ColorizerObject();

    HRESULT STDMETHODCALLTYPE get_SourceFile(BSTR* path) override;
    HRESULT STDMETHODCALLTYPE put_SourceFile(BSTR path) override;
    HRESULT STDMETHODCALLTYPE get_DestinationFile(BSTR* path) override;
    HRESULT STDMETHODCALLTYPE put_DestinationFile(BSTR path) override;
    HRESULT STDMETHODCALLTYPE Colorize() override;
    HRESULT STDMETHODCALLTYPE put_Hue(double degrees) override;
    HRESULT STDMETHODCALLTYPE put_Saturation(double factor) override;
    HRESULT STDMETHODCALLTYPE put_AuxParameter1(double value) override;
    HRESULT STDMETHODCALLTYPE put_Brightness(double factor) override;
    HRESULT STDMETHODCALLTYPE put_AuxParameter2(double value) override;
    HRESULT STDMETHODCALLTYPE put_Quality(std::int16_t factor) override;

    HRESULT STDMETHODCALLTYPE Reserved4() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Reserved5() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Reserved7() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Reserved9() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Reserved11() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Reserved13() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Reserved15() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Reserved17() override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override;

  private:
    void DeclareFiles();
    void DeclareParameter(std::string_view name, void (Colorizer::*set)(double));

    WindowsPictureDisk disk_;
    ColorizerAdapter colorizer_{disk_};
};

}  // namespace morpho
