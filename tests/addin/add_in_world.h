#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_platform.h"
#include "web_host/host_command_bars.h"

namespace morpho::test {

// A host with command bars in an otherwise fake world, whose log goes to the debugger.
struct AddInWorld {
    explicit AddInWorld(const std::string& version = "6.0") : bars(version, &world.clipboard) {
        world.component.application = application;
        application->version = version;
        world.TurnLogOn();
        world.resources.data[{"BITMAP", 101}] = "BM face";
    }
    AddInWorld(const AddInWorld&) = delete;
    AddInWorld& operator=(const AddInWorld&) = delete;

    // What a person sees of these controls.
    static std::string Shown(const HostControls& controls) {
        std::string captions;
        for (const auto& control : controls.All())
            captions += '[' + control->Look().caption + control->Look().tooltip + ']';
        return captions;
    }
    std::string Shown() const { return Shown(format) + Shown(*bars.Pictures()->controls); }

    struct Host : FakeApplication {
        explicit Host(AddInWorld& owner) : FakeApplication(owner.world.files), bars(owner.bars) {}
        std::unique_ptr<CommandBars> Bars() override { return bars.View(); }
        HostCommandBars& bars;
    };

    FakePlatform world;
    HostCommandBars bars;
    HostControls& format = bars.Menu(HostMenu::kFormat);
    std::shared_ptr<Host> application = std::make_shared<Host>(*this);
};

}  // namespace morpho::test
