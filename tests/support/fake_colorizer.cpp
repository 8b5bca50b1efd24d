#include "support/fake_colorizer.h"

#include <optional>
#include <sstream>

namespace morpho::test {

namespace {

class FakeColorizer : public Colorizer {
  public:
    FakeColorizer(FakeColorizerFactory& factory, FileSystem& files)
        : factory_(factory), files_(files) {
        factory_.calls.emplace_back("Create");
    }
    ~FakeColorizer() override { factory_.calls.emplace_back("Release"); }

    std::string SourceFile() const override { return source_; }
    void SetSourceFile(const std::string& path) override { Remember("SourceFile", source_ = path); }
    std::string DestinationFile() const override { return destination_; }
    void SetDestinationFile(const std::string& path) override {
        Remember("DestinationFile", destination_ = path);
    }
    void SetHue(double degrees) override { Remember("Hue", hue_ = degrees); }
    void SetSaturation(double factor) override { Remember("Saturation", saturation_ = factor); }
    void SetBrightness(double factor) override { Remember("Brightness", brightness_ = factor); }
    void SetQuality(std::int16_t factor) override {
        Remember("Quality", factor);
        quality_ = factor;
    }
    void SetAuxParameter1(double value) override { Remember("AuxParameter1", value); }
    void SetAuxParameter2(double value) override { Remember("AuxParameter2", value); }

    void Colorize() override {
        factory_.calls.emplace_back("Colorize");
        if (factory_.failAtPass > 0 && --factory_.failAtPass == 0)
            throw RunTimeError(ErrorNumber::kInvalidPicture, "Invalid picture: " + source_);
        std::ostringstream pass;
        pass << "|h" << hue_ << " s" << saturation_ << " b" << brightness_;
        if (quality_) pass << " q" << *quality_;
        files_.WriteFile(destination_, files_.ReadFile(source_) + pass.str());
    }

  private:
    template <typename Value>
    void Remember(const char* what, const Value& value) {
        std::ostringstream call;
        call << what << ' ' << value;
        factory_.calls.push_back(call.str());
    }

    FakeColorizerFactory& factory_;
    FileSystem& files_;
    std::string source_;
    std::string destination_;
    double hue_ = 0;
    double saturation_ = 1;
    double brightness_ = 1;
    std::optional<std::int16_t> quality_;
};

}  // namespace

std::unique_ptr<Colorizer> FakeColorizerFactory::Create() {
    if (!creatable) {
        throw RunTimeError(ErrorNumber::kCannotCreateComponent,
                           "ActiveX component can't create object");
    }
    return std::make_unique<FakeColorizer>(*this, files_);
}

}  // namespace morpho::test
