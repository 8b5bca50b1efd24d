#include <gmock/gmock.h>

#include <cstdlib>
#include <optional>

#include "colorizer/recolorer.h"
#include "colorizer_server/colorizer_interface.h"
#include "colorizer_server/com_colorizer.h"
#include "platform/run_time_error.h"
#include "support/own_server.h"
#include "support/temporary_folder.h"
#include "windows_com/bstr.h"
#include "windows_com/com_pointer.h"

namespace morpho::test {
namespace {

using testing::HasSubstr, testing::Property, testing::ThrowsMessage, testing::Throws;

const std::vector<std::wstring> kKeys = {L"CLSID\\{2142EA3D-D6D1-4C75-996B-A6D999AFD65F}",
                                         L"Morpho.Colorizer"};

class ColorizerServerTest : public testing::Test {
  protected:
    ColorizerServerTest() {
        std::filesystem::copy_file(MORPHO_SOURCE_DIR "/src/resources/colorband.jpg",
                                   folder_ / "band.jpg");
        ::CoInitialize(nullptr);
        server_.emplace(L"Colorizer.dll", kKeys);
    }
    ~ColorizerServerTest() override {
        server_.reset();
        ::CoUninitialize();
    }
    std::string Expected() const {
        const std::string band = folder_.Read("band.jpg");
        const auto recolored = colorizer::Recolored(
            std::span(reinterpret_cast<const std::uint8_t*>(band.data()), band.size()),
            {.brightness = 0.5, .saturation = 2, .hueDegrees = 90}, 80);
        return {recolored.begin(), recolored.end()};
    }

    TemporaryFolder folder_;
    std::optional<OwnServer> server_;
};

TEST_F(ColorizerServerTest, RecoloursForTheEditorsAndMayBeUnloadedAfterwards) {
    ASSERT_EQ(S_OK, server_->Registered());
    EXPECT_TRUE(server_->CanBeUnloaded());
    auto colorizer = ComColorizerFactory().Create();
    EXPECT_FALSE(server_->CanBeUnloaded());
    colorizer->SetSourceFile(folder_ / "band.jpg");
    colorizer->SetDestinationFile(folder_ / "out.jpg");
    colorizer->SetHue(90);
    colorizer->SetSaturation(2);
    colorizer->SetAuxParameter1(0);
    colorizer->SetBrightness(0.5);
    colorizer->SetAuxParameter2(0);
    colorizer->SetQuality(80);
    colorizer->Colorize();
    EXPECT_EQ(Expected(), folder_.Read("out.jpg"));
    colorizer.reset();
    EXPECT_TRUE(server_->CanBeUnloaded());
}

// Calls a slot of the virtual table, counted from the first after IDispatch.
template <class Argument>
void CallSlot(IColorizer* colorizer, std::size_t slot, Argument argument) {
    using Method = HRESULT(STDMETHODCALLTYPE*)(IColorizer*, Argument);
    const auto table = *reinterpret_cast<Method**>(colorizer);
    EXPECT_EQ(S_OK, table[7 + slot](colorizer, argument)) << slot;
}

TEST_F(ColorizerServerTest, HasItsMembersInTheSlotsThatCallersWereBuiltWith) {
    ComPointer<IColorizer> made;
    ASSERT_EQ(S_OK, ::CoCreateInstance(kColorizerClass, nullptr, CLSCTX_INPROC_SERVER,
                                       __uuidof(IColorizer), made.OutVoid()));
    const Bstr source(folder_ / "band.jpg");
    const Bstr destination(folder_ / "out.jpg");
    CallSlot(made.Get(), 1, source.Get());
    CallSlot(made.Get(), 3, destination.Get());
    CallSlot(made.Get(), 8, 90.0);
    CallSlot(made.Get(), 10, 2.0);
    CallSlot(made.Get(), 12, 0.0);
    CallSlot(made.Get(), 14, 0.5);
    CallSlot(made.Get(), 16, 0.0);
    CallSlot(made.Get(), 18, std::int16_t{80});
    using Method = HRESULT(STDMETHODCALLTYPE*)(IColorizer*);
    EXPECT_EQ(S_OK, (*reinterpret_cast<Method**>(made.Get()))[7 + 6](made.Get()));
    EXPECT_EQ(Expected(), folder_.Read("out.jpg"));
    for (const std::size_t slot : {0, 2}) {
        Bstr read;
        CallSlot(made.Get(), slot, read.Out());
        EXPECT_EQ(TextOf((slot == 0 ? source : destination).Get()), TextOf(read.Get()));
    }
}

TEST_F(ColorizerServerTest, RecoloursForAScriptHost) {
    folder_.Write("recolour.js", R"(
        var colorizer = new ActiveXObject("Morpho.Colorizer");
        colorizer.SourceFile = WScript.Arguments(0) + "\\band.jpg";
        colorizer.destinationfile = WScript.Arguments(0) + "\\out.jpg";
        colorizer.Hue = 90;
        colorizer.Saturation = 2;
        colorizer.Brightness = "0.5";
        colorizer.AuxParameter1 = colorizer.AuxParameter2 = 0;
        colorizer.Quality = 80;
        colorizer.Colorize();
        colorizer.SourceFile += "x";
        try { colorizer.Colorize(); } catch (error) { WScript.Quit(error.number & 0xFFFF); }
    )");
    const std::string command =
        "cscript.exe //nologo " + folder_ / "recolour.js" + " " + folder_.Path().string();
    EXPECT_EQ(static_cast<int>(ErrorNumber::kFileNotFound), std::system(command.c_str()));
    EXPECT_EQ(Expected(), folder_.Read("out.jpg"));
}

TEST_F(ColorizerServerTest, TellsWhatTheLibraryRefuses) {
    folder_.Write("text.gif", "no picture");
    const auto colorizer = ComColorizerFactory().Create();
    colorizer->SetDestinationFile(folder_ / "out.gif");
    const struct {
        std::string source;
        ErrorNumber number;
    } table[] = {{folder_ / "none.gif", ErrorNumber::kFileNotFound},
                 {folder_ / "none\\none.gif", ErrorNumber::kPathNotFound},
                 {"band.jpg", ErrorNumber::kPathNotFound},
                 {folder_ / "text.gif", ErrorNumber::kInvalidPicture}};
    for (const auto& row : table) {
        colorizer->SetSourceFile(row.source);
        EXPECT_THAT([&] { colorizer->Colorize(); },
                    Throws<RunTimeError>(Property(&RunTimeError::Number, row.number)))
            << row.source;
    }
    EXPECT_THAT([&] { colorizer->Colorize(); }, ThrowsMessage<RunTimeError>(HasSubstr("GIF")));
    EXPECT_FALSE(folder_.Has("out.gif"));
}

TEST_F(ColorizerServerTest, CannotBeCreatedOnceItIsUnregistered) {
    server_.reset();
    EXPECT_THAT(
        [] { ComColorizerFactory().Create(); },
        Throws<RunTimeError>(Property(&RunTimeError::Number, ErrorNumber::kCannotCreateComponent)));
}

}  // namespace
}  // namespace morpho::test
