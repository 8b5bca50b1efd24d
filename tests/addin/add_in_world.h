#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_platform.h"
#include "web_host/host_command_bars.h"

namespace morpho::test {

// A host with command bars in an otherwise fake world. The settings send the log to the debugger.
struct AddInWorld {
    explicit AddInWorld(const std::string& version = "6.0")
        : bars(version, &world.clipboard), application(std::make_shared<Host>(*this)) {
        application->version = version;
        world.resources.data[{"BITMAP", 101}] = "BM face";
        for (const std::string product : {"Theme Morpho", "Image Morpho"})
            PutSetting(product, "Logging", "2");
    }
    AddInWorld(const AddInWorld&) = delete;
    AddInWorld& operator=(const AddInWorld&) = delete;

    static std::string Path(const std::string& product) {
        return "Software\\VB and VBA Program Settings\\" + product + "\\Window";
    }
    void PutSetting(const std::string& product, const std::string& key, const std::string& value) {
        world.registry.Put(kCurrentUser, Path(product), key, value);
    }
    // What a person sees of these controls.
    static std::string Shown(const HostControls& controls) {
        std::string captions;
        for (const auto& control : controls.All())
            captions += '[' + control->Look().caption + control->Look().tooltip + ']';
        return captions;
    }
    std::string Menu() const { return Shown(bars.Menu(HostMenu::kFormat)); }
    std::string Toolbar() const { return Shown(*bars.Pictures()->controls); }
    void Click(const std::string& tag) const {
        for (const auto& bar : bars.All()) {
            if (const auto button = bar->controls->Find({}, tag, true)) button->Click();
        }
    }

    struct Host : FakeApplication {
        explicit Host(AddInWorld& owner) : FakeApplication(owner.world.files), bars(owner.bars) {}
        std::unique_ptr<CommandBars> Bars() override { return bars.View(); }
        HostCommandBars& bars;
    };

    FakePlatform world;
    HostCommandBars bars;
    std::shared_ptr<Host> application;
};

}  // namespace morpho::test
