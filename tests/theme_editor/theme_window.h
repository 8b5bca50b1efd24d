#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "support/fake_platform.h"
#include "theme_editor/frm_theme_morpho.h"

namespace morpho::test {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Lines = std::vector<std::string>;

// Remembers what a browser was asked to do.
class RecordingBrowser : public Peer {
  public:
    Lines asked;

  protected:
    void Write(Aspects changed) override;
};

// The Theme Morpho window on a web with two themes, "blends" and "citrus". The log goes to the
// debugger output, and neither the About box nor the quick reference is shown at the start.
// Questions that no test answers are failures.
class ThemeWindow : public testing::Test {
  protected:
    using Pictures = std::vector<std::pair<std::string, std::string>>;  // element key, file

    // Rows of "blends", as listed; the two banners share an image.
    enum Row { kBanner, kButton, kBullet, kNormalBanner, kNormalBullet, kLine, kBackground };

    ThemeWindow();
    void TearDown() override;

    // A theme of the web that the host has unpacked. The picture a.gif holds "blends/a.gif".
    void PutTheme(const std::string& name, const std::string& label, const Pictures& pictures);
    void PutSetting(const std::string& key, const std::string& value);
    static std::string Original(const std::string& file, const std::string& theme = "blends");
    static std::string Working(const std::string& file, const std::string& theme = "blends");

    frmThemeMorpho& Open();
    // Ticks these rows alone and forgets what was logged and asked until then.
    void Tick(const std::vector<int>& rows);
    void Forget();

    std::vector<int> Ticked() const;
    Lines Listed() const;  // "key=file", in the list's order
    Lines Log() const { return world_.LogLines(); }
    std::string Setting(const std::string& key) const;  // "(none)" when there is none
    void ExpectPicture(const std::string& file, const std::string& bytes) const;
    // That so many messages were shown, and the last one.
    void ExpectMessage(std::size_t count, const std::string& text, int flags) const;
    // The first is number 1.
    void ExpectNthMessage(std::size_t nth, const std::string& text, int flags) const;

    FakePlatform world_;
    RecordingBrowser browser_;
    std::optional<frmThemeMorpho> window_;
    Lines notices_;              // what the shared-image notice said
    bool tickDontShow_ = false;  // the person ticks its box
    int prompts_ = 0;            // how often the JPEG quality was asked; the answer is 60
};

}  // namespace morpho::test
