#include <gmock/gmock.h>

#include <map>

#include "colorizer_adapter/colorizer_adapter.h"
#include "platform/platform.h"
#include "resources/embedded_resources.h"
#include "shared/memory_clipboard.h"
#include "windows/edited_web.h"
#include "windows/front_page/host_world.h"
#include "windows_com/com_error.h"
#include "windows_host/com_automation.h"
#include "windows_host/front_page_application.h"
#include "windows_program/windows_desktop.h"
#include "windows_system/windows_environment.h"
#include "windows_system/windows_registry.h"

namespace morpho::test {
namespace {

using testing::IsEmpty;

// The theme editor in the played host, without windows.
struct EditorInHost {
    HostWorld world;
    WindowsDesktop system;
    WindowsRegistry registry;
    WindowsFileSystem files;
    WindowsEnvironment environment{{"Morpho", 1, 0, 0, ""}};
    EmbeddedResources resources;
    ColorizerAdapterFactory colorizers{system};
    HeadlessToolkit toolkit;
    ComAutomation automation;
    MemoryClipboard clipboard;
    Platform platform{
        registry,    files,     system.GetCodePage(), system.GetShell(), system.GetClock(),
        environment, resources, colorizers,           toolkit,           automation,
        clipboard};
    Component component;
    Program program{platform, component};

    void Edit(Recolours recolours) {
        component.application =
            std::make_shared<FrontPageApplication>(DispatchCaller(ApplicationObject(world.Host())));
        {
            BatchWindow window(program, toolkit);
            SaveAsDusk(window, recolours);
        }
        component.application.reset();
    }
};

TEST(EditingInTheHost, LeavesTheSameBytesAsTheDesktopProgram) {
    EditorInHost host;
    const long objects = LiveObjects();
    host.Edit(Recolours::kAll);
    EXPECT_EQ(LiveObjects(), objects);
    const Tree expected = EditedByDesktopProgram();
    EXPECT_THAT(Differences(EditedTree(host.world.Web(), host.world.UserThemes()), expected),
                IsEmpty());
    EXPECT_TRUE(expected.contains("_themes/dusk/dusk.inf"));
}

TEST(EditingInTheHost, SurvivesEveryCallThatFails) {
    std::map<std::string, int> calls;
    {
        EditorInHost host;
        host.world.Host().beforeCall = [&](const std::string& member) { ++calls[member]; };
        host.Edit(Recolours::kNothing);
    }
    for (const auto& [failing, count] : calls) {
        SCOPED_TRACE(failing + " " + std::to_string(count));
        EditorInHost host;
        const long objects = LiveObjects();
        int left = count > 2 ? 2 : 1;
        host.world.Host().beforeCall = [&, name = failing](const std::string& member) {
            if (member == name && --left == 0)
                throw ErrorOf(RPC_E_DISCONNECTED, "The host is busy.");
        };
        try {
            host.Edit(Recolours::kNothing);
        } catch (const std::exception&) {
            // What the window tells of it is the editor's matter.
        }
        host.component.application.reset();
        EXPECT_EQ(LiveObjects(), objects);
        EXPECT_LE(left, 0);
        // No page needs a theme that the web does not have.
        const Tree web = host.world.Web();
        if (!web.contains("_themes/dusk/dusk.inf")) {
            EXPECT_EQ(web.at("index.htm").find("_themes/dusk"), std::string::npos);
        }
    }
}

}  // namespace
}  // namespace morpho::test
