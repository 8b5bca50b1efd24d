#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "support/fake_platform.h"
#include "theme_editor/frm_save_as.h"
#include "theme_editor/frm_theme_morpho.h"

namespace morpho::test {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Lines = std::vector<std::string>;

inline const std::string kGlobalThemes = "C:\\Common\\Microsoft Shared\\Themes11\\";
inline const std::string kUserThemes = "C:\\Ann\\Microsoft\\Themes\\";
inline const std::string kHostThemes = "C:\\Cache\\FrontPageTempDir\\mstheme\\";
inline const std::string kWebThemes = "C:\\Web\\_themes\\";
inline const std::string kWorkRoot = "C:\\Temp\\Morpho\\";

// Remembers what a browser was told to do.
class Onlooker : public Peer {
  public:
    explicit Onlooker(Control& control) : control_(control) { control_.Attach(this); }
    ~Onlooker() override { control_.Attach(nullptr); }
    Lines seen;

  protected:
    void Write(Aspects changed) override;

  private:
    Control& control_;
};

// The Theme Morpho window in a world where it has all it needs but themes. The log goes to the
// debugger output, and neither the About box nor the quick reference is shown at the start.
struct ThemeWorld {
    using Pictures = std::vector<std::pair<std::string, std::string>>;  // element key, file

    ThemeWorld();

    // A theme of the web that the host has unpacked. The picture a.gif holds "blends/a.gif".
    void PutTheme(const std::string& name, const std::string& label, const Pictures& pictures);
    void PutSetting(const std::string& key, const std::string& value);
    std::string Setting(const std::string& key) const;  // "(none)" when there is none
    void PutShellFolder(const std::string& name, const std::string& path);

    frmThemeMorpho& Open();
    void Forget();  // what was logged and asked until now
    Lines Log() const { return world.LogLines(); }
    // That so many messages were shown, and the last one.
    void ExpectMessage(std::size_t count, const std::string& text, int flags) const;

    FakePlatform world;
    std::optional<frmThemeMorpho> window;
    std::optional<Onlooker> browser;
    Lines notices;              // what the shared-image notice said
    bool tickDontShow = false;  // the person ticks its box
    int prompts = 0;            // how often the JPEG quality was asked; the answer is 60
};

// The window on a web with two themes, "blends" and "citrus". Questions that no test answers are
// failures.
class ThemeWindow : public testing::Test, protected ThemeWorld {
  protected:
    // Rows of "blends", as listed; the two banners share an image.
    enum Row { kBanner, kButton, kBullet, kNormalBanner, kNormalBullet, kLine, kBackground };

    ThemeWindow();
    void TearDown() override { EXPECT_THAT(world.toolkit.Unscripted(), IsEmpty()); }

    // Ticks these rows alone and forgets what was logged and asked until then.
    void Tick(const std::vector<int>& rows);
    std::vector<int> Ticked() const;
    Lines Listed() const;    // "key=file", in the list's order
    Lines Operable() const;  // the controls with which a person can work now
    void ExpectPicture(const std::string& file, const std::string& bytes) const;
};

class OpenThemeWindow : public ThemeWindow {
  protected:
    OpenThemeWindow() { Open(); }
};

// The visible controls with which a person works, rather than only looking at them.
std::vector<const Control*> OperatedControls(const Container& container);

// The Theme Morpho window on a web that uses the theme "coast", which is installed for all users.
// "moor" (for all users) and "dunes" (the user's own) are installed too.
struct SaveWorld : ThemeWorld {
    SaveWorld();

    // Opens the window, and recolours what the theme has.
    void OpenAndRecolour();
    // Lets the person fill in the Save As dialog and press Save; its suggestions are remembered.
    void PersonSavesAs(const std::string& name, const std::string& title, bool apply);
    void InstallTheme(const std::string& themesFolder, const std::string& name,
                      const std::string& title, const std::string& readOnly = "false");
    // All files but those of the temporary folder, by path.
    std::map<std::string, std::string> Tree() const;
    bool IsUsable() const;

    Lines saveAsPrompts;  // of the dialog, each time it was shown
};

// The bytes of a package file with these members.
std::string Package(const std::vector<std::pair<std::string, std::string>>& members);

}  // namespace morpho::test
