#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "image_editor/frm_image_morpho.h"
#include "image_editor/frm_web_open.h"
#include "support/fake_platform.h"

namespace morpho::test {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using Lines = std::vector<std::string>;

// A GIF of that size in pixels, as far as its header tells.
std::string Gif(int width, int height);
// What the fake recolouring makes of it.
std::string Recoloured(const std::string& picture, int hue);

// The Image Morpho window in a world with the pictures C:\Pictures\a.gif and, in the web, sky.gif,
// images\b.gif and images\c.jpg. The log goes to the debugger output. Questions and dialogs that no
// test answers are failures.
class ImageWindow : public testing::Test {
  protected:
    ImageWindow();
    void TearDown() override { EXPECT_THAT(world.toolkit.Unscripted(), IsEmpty()); }

    frmImageMorpho& Open(std::optional<ImageLocation> image = {});
    frmImageMorpho& OpenDisk() {
        return Open(ImageLocation{ImageKind::kDisk, "C:\\Pictures\\a.gif"});
    }
    frmImageMorpho& OpenWeb() {
        return Open(ImageLocation{ImageKind::kWeb, "file:///C:/Web/images/b.gif"});
    }
    void WillAnswer(const std::vector<Answer>& answers) {
        for (const Answer answer : answers)
            world.toolkit.WillAnswer(answer);
    }
    Lines Messages() const;
    // What is below the temporary folder.
    Lines Temporary() const { return world.files.FilesBelow("C:\\Temp"); }

    const std::string gif = Gif(40, 30);
    FakePlatform world;
    std::optional<frmImageMorpho> window;
};

}  // namespace morpho::test
