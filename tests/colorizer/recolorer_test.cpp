#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "colorizer/colorizer.h"
#include "colorizer/pictures.h"

namespace fs = std::filesystem;

namespace colorizer {
namespace {

class RecolorerTest : public testing::Test {
  protected:
    RecolorerTest() { fs::create_directories(folder_); }
    ~RecolorerTest() override { fs::remove_all(folder_); }

    void Write(const fs::path& path, const Bytes& bytes) {
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
    }
    Bytes Read(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return Bytes(std::istreambuf_iterator<char>(file), {});
    }
    std::ptrdiff_t FileCount() { return std::distance(fs::directory_iterator(folder_), {}); }

    const fs::path folder_ = fs::path(testing::TempDir()) /
                             testing::UnitTest::GetInstance()->current_test_info()->name();
    const fs::path original_ = folder_ / "original";
    const fs::path work_ = folder_ / "w\u00f6rk";
    Recolorer recolorer_;
};

TEST_F(RecolorerTest, ChainGivesTheSameFilesAsSinglePasses) {
    const JpegKind kinds[] = {{},
                              {.isProgressive = true},
                              {.hasOwnHuffmanTables = true},
                              {.colour = 'r'},
                              {.width = 700, .height = 600, .grain = 30}};
    std::vector<Bytes> originals{MakeGif()};
    for (const JpegKind& kind : kinds)
        originals.push_back(MakeJpeg(kind));
    for (const Bytes& original : originals) {
        Write(original_, original);
        Bytes expected = original;
        fs::path source = original_;
        const auto expect_pass = [&](const Adjustment& adjustment, std::optional<int> quality) {
            recolorer_.Recolor(source, work_, adjustment, quality);
            expected = Recolored(expected, adjustment, quality);
            EXPECT_EQ(Read(work_), expected);
            source = work_;
        };
        expect_pass({1, 1, 40}, {});
        expect_pass({1.4, 1, 40}, 60);
        expect_pass({1, 1, 0}, {});
        expect_pass({0.7, 2, -100}, {});
        expect_pass({1, 1, 0}, 30);
        EXPECT_EQ(FileCount(), 2);
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
    const Bytes old = FromText("what stood there");
    Write(work_, old);
    const auto expect_failure = [&](const fs::path& source, const fs::path& destination,
                                    const Adjustment& adjustment, std::optional<int> quality) {
        EXPECT_THROW(recolorer_.Recolor(source, destination, adjustment, quality), Error);
        EXPECT_EQ(Read(work_), old);
        EXPECT_EQ(FileCount(), fs::exists(original_) ? 2 : 1);
    };
    expect_failure(original_, work_, {1, 1, 9}, {});
    Write(original_, MakeGif());
    expect_failure(folder_, work_, {1, 1, 9}, {});
    expect_failure(work_, work_, {1, 1, 9}, {});
    expect_failure(original_, folder_, {1, 1, 9}, {});
    expect_failure(original_, folder_ / "none" / "file", {1, 1, 9}, {});
    expect_failure(original_, work_, {-1, 1, 9}, {});
    expect_failure(original_, work_, {1, 4.01, 9}, {});
    expect_failure(original_, work_, {1, 1, std::numeric_limits<double>::infinity()}, {});
    expect_failure(original_, work_, {1, 1, 9}, 0);
    expect_failure(original_, work_, {1, 1, 9}, 101);
    fs::permissions(work_, fs::perms::owner_read);
    expect_failure(original_, work_, {1, 1, 9}, {});
}

TEST_F(RecolorerTest, LinkAndPermissionsOfTheDestinationStay) {
    Write(original_, MakeGif());
    Write(work_, {});
    fs::permissions(work_, fs::perms(0640));
    fs::create_symlink(work_, folder_ / "link");
    recolorer_.Recolor(original_, folder_ / "link", {1, 0, 0});
    EXPECT_TRUE(fs::is_symlink(folder_ / "link"));
    EXPECT_EQ(fs::status(work_).permissions(), fs::perms(0640));
    EXPECT_EQ(Read(work_), Recolored(MakeGif(), {1, 0, 0}));
}

}  // namespace
}  // namespace colorizer
