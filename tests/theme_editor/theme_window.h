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
    void Write(Aspects changed) override {
        if ((changed & aspect::kNavigate) != 0) asked.emplace_back("navigate");
        if ((changed & aspect::kReload) != 0) asked.emplace_back("refresh");
        if ((changed & aspect::kReloadCompletely) != 0) asked.emplace_back("refresh completely");
    }
};

// The Theme Morpho window on a web with two themes, "blends" and "citrus". The log goes to the
// debugger output, and neither the About box nor the quick reference is shown at the start. The
// person closes the shared-image notice. Questions that no test answered are failures.
class ThemeWindow : public testing::Test {
  protected:
    using Pictures = std::vector<std::pair<std::string, std::string>>;  // element key, file

    // Rows of "blends", as listed.
    enum Row { kBanner, kButton, kBullet, kNormalBanner, kNormalBullet, kLine, kBackground };

    ThemeWindow();
    void TearDown() override;

    // A theme of the web that the host has unpacked. The picture a.gif holds "blends/a.gif".
    void PutTheme(const std::string& name, const std::string& label, const Pictures& pictures);
    void PutSheet(const std::string& theme, const std::string& sheet, const std::string& css);
    static std::string Original(const std::string& file, const std::string& theme = "blends");
    static std::string Working(const std::string& file, const std::string& theme = "blends");

    frmThemeMorpho& Open();
    // Ticks these rows alone and forgets what was logged and asked until then.
    void Tick(const std::vector<int>& rows);
    std::vector<int> Ticked() const;
    Lines Listed() const;  // "key=file", in the list's order
    std::string PictureBytes(const std::string& file) const {
        return world_.files.Bytes(Working(file));
    }

    Lines Log() const { return world_.LogLines(); }
    void Forget();
    std::string LastMessage() const;
    void PutSetting(const std::string& key, const std::string& value);
    std::string Setting(const std::string& key) const;  // "(none)" when there is none

    FakePlatform world_;
    RecordingBrowser browser_;
    std::optional<frmThemeMorpho> window_;
    int notices_ = 0;            // how often the shared-image notice was shown
    bool tickDontShow_ = false;  // the person ticks its box
    int prompts_ = 0;            // how often the JPEG quality was asked
    int quality_ = 60;           // what the person answers
};

}  // namespace morpho::test
