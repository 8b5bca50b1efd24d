#include <gmock/gmock.h>

#include <memory>

#include "platform/resources.h"
#include "resources/embedded_resources.h"
#include "resources/resource_ids.h"
#include "windows/loaded_host.h"
#include "windows_com/com_error.h"

namespace morpho::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Connections = std::vector<std::unique_ptr<ConnectedAddIn>>;

Connections ConnectAll(LoadedHost& loaded, CallsBy how = CallsBy::kTable) {
    Connections connections;
    for (const std::wstring& progId : loaded.AddIns())
        connections.push_back(std::make_unique<ConnectedAddIn>(loaded.Host(), progId, how));
    return connections;
}

TEST(Connection, PutsTheCommandsOnTheBarsOfEveryRelease) {
    const std::string face = EmbeddedResources().Bytes(kBitmapResource, kToolbarFace);
    for (const std::string version : {"4.0", "5.0", "6.0"}) {
        for (const CallsBy how : {CallsBy::kTable, CallsBy::kName}) {
            SCOPED_TRACE(version);
            const long objects = LiveObjects();
            {
                LoadedHost loaded(version);
                EXPECT_TRUE(loaded.CanUnload());
                {
                    const Connections connections = ConnectAll(loaded, how);
                    ASSERT_THAT(loaded.Commands(),
                                ElementsAre("ImageMorpho", "ThemeMorpho", "ImageMorphoToolbar"));
                    EXPECT_EQ(loaded.Command("ThemeMorpho")->Look().caption, "&Theme Morpho...");
                    EXPECT_EQ(loaded.Command("ImageMorpho")->Look().caption, "&Image Morpho...");
                    const HostControlLook& button = loaded.Command("ImageMorphoToolbar")->Look();
                    EXPECT_EQ(button.tooltip, "Image Morpho");
                    EXPECT_EQ(button.style, kIconAndCaptionStyle);
                    EXPECT_EQ(button.face, face);
                    const Connections second = ConnectAll(loaded, how);
                    connections[0]->ConnectAgain();
                    EXPECT_EQ(loaded.Commands().size(), 3U);
                    EXPECT_FALSE(loaded.CanUnload());
                }
                EXPECT_THAT(loaded.Commands(), IsEmpty());
                EXPECT_TRUE(loaded.CanUnload());
            }
            EXPECT_EQ(LiveObjects(), objects);
        }
    }
}

TEST(Connection, SurvivesEveryCallThatFails) {
    LoadedHost loaded;
    int calls = 0;
    loaded.Host().beforeCall = [&](const std::string&) { ++calls; };
    ConnectAll(loaded);
    const int all = calls;
    const long objects = LiveObjects();
    for (int failing = 1; failing <= all; ++failing) {
        calls = 0;
        loaded.Host().beforeCall = [&](const std::string& member) {
            SCOPED_TRACE(member);
            if (++calls == failing) throw ResultError(RPC_E_SERVERCALL_RETRYLATER);
        };
        ConnectAll(loaded);
        EXPECT_TRUE(loaded.CanUnload()) << failing;
        EXPECT_EQ(LiveObjects(), objects) << failing;
        // What the host refused to delete.
        loaded.Host().beforeCall = [](const std::string&) {};
        for (const std::string tag : {"ImageMorpho", "ThemeMorpho", "ImageMorphoToolbar", ""}) {
            while (const auto left = loaded.Command(tag)) {
                if (left->Controls()) break;
                left->Remove();
            }
        }
    }
}

}  // namespace
}  // namespace morpho::test
