#include "colorizer_adapter/colorizer_adapter.h"

#include <gmock/gmock.h>

#include "desktop/this_system.h"
#include "platform/run_time_error.h"
#include "support/temporary_folder.h"

namespace morpho {
namespace {

using testing::Property, testing::Throws;

class ColorizerAdapterTest : public testing::Test {
  protected:
    ColorizerAdapterTest() {
        for (const char* name : {"logo.gif", "dome.jpg"})
            std::filesystem::copy_file(
                std::string(MORPHO_SOURCE_DIR "/samples/larkfell/images/") + name,
                folder_.At(name));
        colorizer_->SetDestinationFile(Inside("out"));
    }
    std::string Inside(const std::string& name) { return system_.PathInside(folder_.At(name)); }
    std::string Recolored(const std::string& name) {
        colorizer_->SetSourceFile(Inside(name));
        colorizer_->Colorize();
        return folder_.Read("out");
    }
    void ExpectError(const std::string& source, ErrorNumber number) {
        colorizer_->SetSourceFile(source);
        EXPECT_THAT([this] { colorizer_->Colorize(); },
                    Throws<RunTimeError>(Property(&RunTimeError::Number, number)));
        EXPECT_FALSE(folder_.Has("out"));
    }

    TemporaryFolder folder_;
    ThisSystem system_;
    std::unique_ptr<Colorizer> colorizer_ = ColorizerAdapterFactory(system_).Create();
};

TEST_F(ColorizerAdapterTest, RecoloursAFileFoundWithoutRegardToCaseAndThenItsOwnWork) {
    colorizer_->SetSaturation(0);
    const std::string grey = Recolored("LOGO.gif");
    EXPECT_NE(grey, folder_.Read("logo.gif"));
    colorizer_->SetSaturation(4);
    EXPECT_EQ(Recolored("out"), grey) << "what is grey stays grey";
}

TEST_F(ColorizerAdapterTest, TakesTheLowestQualityThatAScrollBarReaches) {
    colorizer_->SetQuality(0);
    EXPECT_LT(Recolored("dome.jpg").size(), folder_.Read("dome.jpg").size());
}

TEST_F(ColorizerAdapterTest, AFailureIsARunTimeErrorAndWritesNothing) {
    folder_.Write("text.gif", "no picture");
    ExpectError(Inside("none.gif"), ErrorNumber::kFileNotFound);
    ExpectError(Inside("no folder/none.gif"), ErrorNumber::kPathNotFound);
    ExpectError("logo.gif", ErrorNumber::kPathNotFound);
    ExpectError(Inside("text.gif"), ErrorNumber::kInvalidPicture);
}

}  // namespace
}  // namespace morpho
