#include <gmock/gmock.h>

#include "platform/run_time_error.h"
#include "resources/embedded_resources.h"
#include "resources/resource_ids.h"
#include "windows_system/windows_clipboard.h"

namespace morpho::test {
namespace {

TEST(Clipboard, GivesBackWhatItHeldBeforeAPictureWasPutThere) {
    const EmbeddedResources resources;
    const std::string picture = resources.Bytes(kBitmapResource, kToolbarFace);
    WindowsClipboard clipboard;
    const ClipboardData text{"13", std::string("a\0\xE4\0\0\0", 6)};  // CF_UNICODETEXT
    clipboard.SetContents({text});
    const auto held = clipboard.Contents();
    EXPECT_THAT(held, testing::Contains(text));
    clipboard.SetPicture(picture);
    EXPECT_EQ(picture, clipboard.Picture());
    clipboard.SetContents(held);
    EXPECT_EQ("", clipboard.Picture());
    EXPECT_THAT(clipboard.Contents(), testing::Contains(text));
    EXPECT_THROW(clipboard.SetPicture("no picture"), RunTimeError);
}

}  // namespace
}  // namespace morpho::test
