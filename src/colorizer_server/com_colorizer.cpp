#include "colorizer_server/com_colorizer.h"

#include "colorizer_server/colorizer_interface.h"
#include "windows_com/bstr.h"
#include "windows_com/com_error.h"
#include "windows_com/com_pointer.h"

namespace morpho {

namespace {

class ComColorizer : public Colorizer {
  public:
    explicit ComColorizer(ComPointer<IColorizer> component) : component_(std::move(component)) {}

    std::string SourceFile() const override { return Text(&IColorizer::get_SourceFile); }
    void SetSourceFile(const std::string& path) override {
        Call(&IColorizer::put_SourceFile, Bstr(path).Get());
    }
    std::string DestinationFile() const override { return Text(&IColorizer::get_DestinationFile); }
    void SetDestinationFile(const std::string& path) override {
        Call(&IColorizer::put_DestinationFile, Bstr(path).Get());
    }
    void SetHue(double degrees) override { Call(&IColorizer::put_Hue, degrees); }
    void SetSaturation(double factor) override { Call(&IColorizer::put_Saturation, factor); }
    void SetBrightness(double factor) override { Call(&IColorizer::put_Brightness, factor); }
    void SetQuality(std::int16_t factor) override { Call(&IColorizer::put_Quality, factor); }
    void SetAuxParameter1(double value) override { Call(&IColorizer::put_AuxParameter1, value); }
    void SetAuxParameter2(double value) override { Call(&IColorizer::put_AuxParameter2, value); }
    void Colorize() override { Call(&IColorizer::Colorize); }

  private:
    template <class Member, class... Arguments>
    void Call(Member member, Arguments... arguments) const {
        Check((component_.Get()->*member)(arguments...), component_.Get(), __uuidof(IColorizer));
    }
    template <class Member>
    std::string Text(Member member) const {
        Bstr text;
        Call(member, text.Out());
        return TextOf(text.Get());
    }

    ComPointer<IColorizer> component_;
};

}  // namespace

std::unique_ptr<Colorizer> ComColorizerFactory::Create() {
    ComPointer<IColorizer> component;
    const HRESULT result = ::CoCreateInstance(kColorizerClass, nullptr, CLSCTX_INPROC_SERVER,
                                              __uuidof(IColorizer), component.OutVoid());
    if (FAILED(result)) throw CannotCreate(kColorizerProgId, result);
    return std::make_unique<ComColorizer>(std::move(component));
}

}  // namespace morpho
