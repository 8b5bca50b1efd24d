#include <gtest/gtest.h>

#include "desktop/this_system.h"
#include "support/temporary_folder.h"

namespace morpho {
namespace {

TEST(WorkFolderTest, GoesWithItsProgramAndElseWithTheNextOne) {
    const TemporaryFolder home;
    // No program holds it any more.
    home.Write("cache/run-1/temp/left.txt", "x");
    const ThisSystem system;
    {
        const auto folder = system.MakeWorkFolder(home.At("cache"));
        const auto another = system.MakeWorkFolder(home.At("cache"));
        EXPECT_FALSE(home.Has("cache/run-1"));
        EXPECT_NE(folder->Path(), another->Path());
        EXPECT_TRUE(std::filesystem::is_directory(folder->Temporary()));
        EXPECT_TRUE(std::filesystem::is_directory(folder->Cache()));
    }
    EXPECT_EQ(home.Below("cache"), Tree());
}

}  // namespace
}  // namespace morpho
