#include "desktop/host/colorizer_adapter.h"

#include <gtest/gtest.h>

#include "desktop/disk/disk_path.h"
#include "desktop/temporary_folder.h"
#include "platform/run_time_error.h"

namespace morpho {
namespace {

const std::filesystem::path kPictures = MORPHO_SOURCE_DIR "/samples/larkfell/images";

class ColorizerAdapterTest : public testing::Test {
  protected:
    ColorizerAdapterTest() {
        for (const char* name : {"logo.gif", "dome.jpg"})
            std::filesystem::copy_file(kPictures / name, folder_ / name);
        colorizer_->SetDestinationFile(Windows("out.gif"));
    }
    std::string Windows(const std::string& name) { return ToWindowsPath(folder_ / name); }
    void ExpectError(const std::string& source, ErrorNumber number) {
        colorizer_->SetSourceFile(source);
        try {
            colorizer_->Colorize();
            ADD_FAILURE() << source;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), number) << error.what();
        }
        EXPECT_FALSE(folder_.Has("out.gif"));
    }

    TemporaryFolder folder_;
    std::unique_ptr<Colorizer> colorizer_ = ColorizerAdapterFactory().Create();
};

TEST_F(ColorizerAdapterTest, RecoloursAFileFoundWithoutRegardToCase) {
    colorizer_->SetSourceFile(Windows("LOGO.gif"));
    colorizer_->SetHue(120);
    colorizer_->Colorize();
    EXPECT_EQ(folder_.Read("out.gif").size(), folder_.Read("logo.gif").size());
    EXPECT_NE(folder_.Read("out.gif"), folder_.Read("logo.gif"));
}

TEST_F(ColorizerAdapterTest, ChainsPassesOverItsDestination) {
    colorizer_->SetSourceFile(Windows("logo.gif"));
    colorizer_->SetSaturation(0);
    colorizer_->Colorize();
    const std::string grey = folder_.Read("out.gif");
    colorizer_->SetSourceFile(Windows("out.gif"));
    colorizer_->SetSaturation(4);
    colorizer_->Colorize();
    EXPECT_EQ(folder_.Read("out.gif"), grey) << "what is grey stays grey";
}

TEST_F(ColorizerAdapterTest, TakesTheLowestQualityThatAScrollBarReaches) {
    colorizer_->SetSourceFile(Windows("dome.jpg"));
    colorizer_->SetDestinationFile(Windows("small.jpg"));
    colorizer_->SetQuality(0);
    colorizer_->Colorize();
    EXPECT_LT(folder_.Read("small.jpg").size(), folder_.Read("dome.jpg").size());
}

TEST_F(ColorizerAdapterTest, AFailureIsARunTimeErrorAndWritesNothing) {
    folder_.Write("text.gif", "no picture");
    ExpectError(Windows("none.gif"), ErrorNumber::kFileNotFound);
    ExpectError(Windows("no folder/none.gif"), ErrorNumber::kPathNotFound);
    ExpectError("C:\\logo.gif", ErrorNumber::kPathNotFound);
    ExpectError(Windows("text.gif"), ErrorNumber::kInvalidPicture);
    ExpectError("", ErrorNumber::kPathNotFound);
}

}  // namespace
}  // namespace morpho
