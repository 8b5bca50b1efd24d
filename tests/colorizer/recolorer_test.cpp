#include <gmock/gmock.h>

#include "colorizer/pictures.h"
#include "colorizer/recolorer.h"
#include "support/temporary_folder.h"

namespace fs = std::filesystem;

namespace colorizer {
namespace {

class RecolorerTest : public testing::Test {
  protected:
    void Write(const fs::path& path, const Bytes& bytes) {
        folder_.Write(path.string(), ToText(bytes));
    }
    Bytes Read(const fs::path& path) { return FromText(folder_.Read(path.string())); }
    // What stands in the folder, and nothing else: what a pass writes beside is gone.
    void ExpectFiles(const Bytes& original, const Bytes& work) {
        EXPECT_EQ(folder_.Below("."),
                  (morpho::Tree{{"original", ToText(original)}, {"w\u00f6rk", ToText(work)}}));
    }

    const morpho::TemporaryFolder folder_;
    const fs::path original_ = folder_.At("original");
    const fs::path work_ = folder_.At("w\u00f6rk");
    Recolorer recolorer_;
};

TEST_F(RecolorerTest, ChainGivesTheSameFilesAsSinglePasses) {
    const Bytes originals[] = {MakeGif(),
                               MakeJpeg({}),
                               MakeJpeg({.isProgressive = true}),
                               MakeJpeg({.hasOwnHuffmanTables = true}),
                               MakeJpeg({.colour = 'r'}),
                               MakeJpeg({.width = 700, .height = 600, .grain = 30})};
    for (const Bytes& original : originals) {
        Write(original_, original);
        Bytes expected = original;
        fs::path source = original_;
        const auto expectPass = [&](const Adjustment& adjustment, std::optional<int> quality) {
            recolorer_.Recolor(source, work_, adjustment, quality);
            expected = Recolored(expected, adjustment, quality);
            ExpectFiles(original, expected);
            source = work_;
        };
        expectPass({1, 1, 40}, {});
        expectPass({1.4, 1, 40}, 60);
        expectPass({1, 1, 0}, {});
        expectPass({0.7, 2, -100}, {});
        expectPass({1, 1, 0}, 30);
    }
}

TEST_F(RecolorerTest, ChainNoticesThatTheWorkCopyWasChanged) {
    Write(original_, MakeJpeg({}));
    recolorer_.Recolor(original_, work_, {1, 1, 40});
    Write(work_, MakeGif());
    recolorer_.Recolor(work_, work_, {1, 1, 40});
    EXPECT_EQ(Read(work_), Recolored(MakeGif(), {1, 1, 40}));
}

TEST_F(RecolorerTest, NeutralPassCopiesBytesAndLeavesTheSameFileAlone) {
    const Bytes damaged = Bytes{0xFF, 0xD8, 0xFF, 1, 2, 3};  // copied unread
    Write(original_, damaged);
    recolorer_.Recolor(original_, work_, {1, 1, 720});
    EXPECT_EQ(Read(work_), damaged);
    const auto before = fs::last_write_time(original_);
    recolorer_.Recolor(original_, original_, {});
    EXPECT_EQ(fs::last_write_time(original_), before);
    Write(original_, FromText("no picture"));
    EXPECT_THROW(recolorer_.Recolor(original_, original_, {}), Error);
}

TEST_F(RecolorerTest, FailureLeavesEverythingAsItWas) {
    Write(original_, MakeGif());
    Write(work_, FromText("what stood there"));
    const auto expectFailure = [&](const fs::path& source, const fs::path& destination,
                                   const Adjustment& adjustment, std::optional<int> quality) {
        EXPECT_THROW(recolorer_.Recolor(source, destination, adjustment, quality), Error);
        ExpectFiles(MakeGif(), FromText("what stood there"));
    };
    expectFailure(folder_ / "none", work_, {1, 1, 9}, {});
    expectFailure(folder_.Path(), work_, {1, 1, 9}, {});
    expectFailure(work_, work_, {1, 1, 9}, {});
    expectFailure(original_, folder_.Path(), {1, 1, 9}, {});
    expectFailure(original_, folder_ / "none/file", {1, 1, 9}, {});
    expectFailure(original_, work_, {-1, 1, 9}, {});
    expectFailure(original_, work_, {1, 4.01, 9}, {});
    expectFailure(original_, work_, {1, 1, std::numeric_limits<double>::infinity()}, {});
    expectFailure(original_, work_, {1, 1, 9}, 0);
    expectFailure(original_, work_, {1, 1, 9}, 101);
    fs::permissions(work_, fs::perms::owner_read);
    expectFailure(original_, work_, {1, 1, 9}, {});
}

TEST_F(RecolorerTest, TheHooksReplaceTheFileAndTellThatItWasExchanged) {
    Write(original_, MakeJpeg({}));
    bool works = true;
    std::uint64_t version = 1;
    Recolorer recolorer({.replace =
                             [&](const fs::path& from, const fs::path& to) {
                                 if (works) fs::rename(from, to);
                                 return works;
                             },
                         .version = [&](const fs::path&) { return version; }});
    recolorer.Recolor(original_, work_, {1, 1, 40});
    const Bytes once = Read(work_);
    works = false;
    EXPECT_THROW(recolorer.Recolor(original_, work_, {1, 1, 90}), Error);
    EXPECT_EQ(Read(work_), once);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), {}), 2);
    works = true;
    // Size and time are as they were; only the version tells of another picture.
    recolorer.Recolor(original_, work_, {1, 1, 40});
    const auto time = fs::last_write_time(work_);
    Bytes other = Read(work_);
    other[other.size() - 3] ^= 1;
    Write(work_, other);
    fs::last_write_time(work_, time);
    ++version;
    recolorer.Recolor(work_, work_, {1, 1, 40});
    EXPECT_EQ(Read(work_), Recolored(other, {1, 1, 40}));
}

TEST_F(RecolorerTest, LinkAndPermissionsOfTheDestinationStay) {
    Write(original_, MakeGif());
    Write(work_, {});
    std::error_code error;
    fs::create_symlink(work_, folder_.At("link"), error);
    if (error) GTEST_SKIP() << "The C++ library has no links here.";
    fs::permissions(work_, fs::perms(0640));
    recolorer_.Recolor(original_, folder_ / "link", {1, 0, 0});
    EXPECT_TRUE(fs::is_symlink(folder_ / "link"));
    EXPECT_EQ(fs::status(work_).permissions(), fs::perms(0640));
    EXPECT_EQ(Read(work_), Recolored(MakeGif(), {1, 0, 0}));
}

}  // namespace
}  // namespace colorizer
