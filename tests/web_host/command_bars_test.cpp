#include <gtest/gtest.h>

#include "support/command_bars_contract.h"
#include "web_host/host_command_bars.h"

namespace morpho::test {
namespace {

struct StandInBars {
    static constexpr int kFormatMenu = 30006;
    HostCommandBars bars{"6.0", nullptr};
    std::unique_ptr<CommandBars> view = bars.View();

    CommandBars& Subject() { return *view; }
    void Click(const std::string& tag) { bars.MenuBar()->controls->Find({}, tag, true)->Click(); }
};
INSTANTIATE_TYPED_TEST_SUITE_P(StandIn, CommandBarsContract, StandInBars);

// Writes down what it is told, and what a screen would then show.
class Mirror : public CommandBarsObserver {
  public:
    std::string told;

    void Added(HostControl& control) override { Tell("+", control); }
    void Removing(HostControl& control) override { Tell("-", control); }
    void Changed(HostControl& control) override {
        Tell(control.Look().isEnabled ? "!" : "off ", control);
    }

  private:
    void Tell(const std::string& what, const HostControl& control) {
        told += what + control.Look().caption + "@" + std::to_string(control.Index()) + " ";
    }
};

TEST(HostCommandBars, TellAMirrorEveryChange) {
    HostCommandBars bars("6.0", nullptr);
    Mirror mirror;
    bars.AddObserver(mirror);
    HostControls& file = bars.Menu(HostMenu::kFile);
    const auto open = file.Append({.id = 23, .look = {.caption = "&Open..."}});
    int opened = 0;
    const auto events = open->OnClick([&] { ++opened; });
    open->Click();
    open->Set(&HostControlLook::isEnabled, false);
    open->Set(&HostControlLook::isEnabled, false);  // no change
    open->Click();
    bars.View()->ActiveMenuBar()->Controls()->Item(1)->Delete();
    open->Set(&HostControlLook::isEnabled, true);  // no longer on a bar
    EXPECT_EQ(mirror.told, "+&Open...@1 off &Open...@1 -&File@1 ");
    EXPECT_EQ(open->Parent(), nullptr);
    EXPECT_EQ(opened, 1);
    bars.RemoveObserver(mirror);
}

}  // namespace
}  // namespace morpho::test
