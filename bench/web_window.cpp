// How long the window of the stand-in host does not answer while the host is at work on a large
// web. A timer of a few milliseconds runs in the window's event loop; the longest time between two
// of its ticks is what a person could notice. Prints milliseconds.
// usage: bench_web_window WEB THEME

#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>

#include "program/linux_system.h"
#include "program/qt_desktop.h"
#include "web_window/host_window.h"

namespace {

using namespace morpho;

constexpr int kTickMilliseconds = 2;
// What the work leaves for the event loop, such as the pages that are shown again, counts, too.
constexpr int kAfterwardsMilliseconds = 1'000;

// The longest time between two ticks.
class Heartbeat {
  public:
    Heartbeat() {
        QObject::connect(&timer_, &QTimer::timeout, [this] { Tick(); });
        since_.start();
        timer_.start(kTickMilliseconds);
    }
    qint64 Longest() {
        Tick();
        return longest_;
    }

  private:
    void Tick() { longest_ = std::max(longest_, since_.restart()); }

    QTimer timer_;
    QElapsedTimer since_;
    qint64 longest_ = 0;
};

void RunEvents(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void Measure(const char* name, const std::function<void()>& work) {
    QElapsedTimer timer;
    Heartbeat heartbeat;
    timer.start();
    work();
    const qint64 lasted = timer.elapsed();
    RunEvents(kAfterwardsMilliseconds);
    std::printf("%s: %lld ms, without an answer for at most %lld ms\n", name,
                static_cast<long long>(lasted), static_cast<long long>(heartbeat.Longest()));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    const std::string web = std::filesystem::absolute(argv[1]).lexically_normal().string();
    LinuxSystem system;
    QtDesktop here(system);
    DesktopPlatform& desktop = here.editors.desktop;
    DiskApplication& host = desktop.FrontPage();
    HostWindow window({host, desktop.Parts(), here.toolkit.Pages(),
                       [&](const std::string& folder) { desktop.OpenForSaving(folder); }});
    window.show();
    RunEvents(kAfterwardsMilliseconds);
    // The first page also starts the browser; that is no work on the web.
    Measure("the window's first web and page", [&] { window.LoadWeb(web); });
    Measure("open", [&] { window.LoadWeb(web); });
    Measure("apply", [&] { host.ActiveWeb()->ApplyTheme(argv[2]); });
    Measure("recalculate", [&] { host.ActiveWeb()->RecalcHyperlinks(); });
    Measure("refresh", [&] { window.RefreshViews(); });
    return 0;
}
