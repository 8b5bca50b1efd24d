#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "support/temporary_folder.h"
#include "support/this_computer.h"
#include "web_host/theme_unpacking.h"

namespace morpho {

class ThemeUnpackingTest : public testing::Test {
  protected:
    void AddTheme(const std::string& name, const std::string& description = "[info]") {
        folder_.Write("web/_themes/" + name + "/" + name + ".inf", description);
    }
    // The themes' labels, and the number of what was left out.
    void ExpectThemes(const std::string& labels, std::size_t skipped = 0,
                      const std::optional<std::string>& only = {}) {
        const ListedThemes web = Unpack("web", {test::WindowsPath(folder_ / "cache"), only});
        std::string shown;
        for (const Theme& theme : web.themes)
            shown += theme.name + "=" + theme.label + ";";
        EXPECT_EQ(shown, labels);
        EXPECT_EQ(web.skipped.size(), skipped) << testing::PrintToString(web.skipped);
    }
    ListedThemes Unpack(const std::string& web, const UnpackOptions& options) {
        return UnpackThemes(disk_, WebFiles(disk_, test::WindowsPath(folder_ / web)), options);
    }
    void ExpectUnpacked(const Tree& files) { EXPECT_EQ(folder_.Below("cache"), files); }

    test::RealDisk disk_;
    TemporaryFolder folder_;
};

}  // namespace morpho
