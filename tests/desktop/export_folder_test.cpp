#include "desktop/export_folder.h"

#include <gtest/gtest.h>

#include "desktop/this_system.h"
#include "support/temporary_folder.h"

namespace morpho {
namespace {

// On Windows the C++ library takes two folders of one drive for the same one.
TEST(ExportFolderTest, TakesFilesOfTheSameDriveIntoAFolderThatIsNewOrEmpty) {
    const TemporaryFolder home;
    home.Write("theme/theme.css", "x");
    home.Write("theme/graphics/bullet.gif", "y");
    const ThisSystem system;
    std::filesystem::create_directory(home.At("empty"));
    for (const char* const name : {"empty", "new"}) {
        ExportFolder(system, home.At("theme") / ".." / name / "").Fill(home.At("theme"), 1);
        EXPECT_EQ(home.Below(name), home.Below("theme"));
    }
}

}  // namespace
}  // namespace morpho
