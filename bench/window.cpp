// How long a person waits for the Theme Morpho window: from the program's start until the preview
// stands, and from a settled slider until the preview shows the new colours. Prints milliseconds.
// usage: bench_window WEB THEME

#include <QApplication>
#include <QElapsedTimer>
#include <QWebEngineView>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "desktop/desktop_platform.h"
#include "linux/disk_file_system.h"
#include "linux/disk_path.h"
#include "program/linux_system.h"
#include "qt/qt_clipboard.h"
#include "qt/qt_toolkit.h"
#include "resources/embedded_resources.h"
#include "shared/component.h"
#include "theme_editor/frm_theme_morpho.h"

namespace {

using namespace morpho;

constexpr int kPatienceMilliseconds = 10'000;
constexpr int kHueSteps = 10;

QImage Preview() {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (auto* view = qobject_cast<QWebEngineView*>(widget)) return view->grab().toImage();
    }
    return {};
}

bool IsPlain(const QImage& image) {
    for (int y = 0; y < image.height(); y += 7) {
        for (int x = 0; x < image.width(); x += 7) {
            if (image.pixel(x, y) != image.pixel(0, 0)) return false;
        }
    }
    return true;
}

// Milliseconds until the preview satisfies `shown`.
template <typename Condition>
qint64 Until(const QElapsedTimer& timer, Condition shown) {
    while (timer.elapsed() < kPatienceMilliseconds && !shown(Preview()))
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    return timer.elapsed();
}

void MeasureHueChanges(frmThemeMorpho& window) {
    std::vector<qint64> times;
    for (int step = 1; step <= kHueSteps; ++step) {
        const QImage before = Preview();
        QElapsedTimer timer;
        timer.start();
        window.sldHue.UserSettle(step * 15);
        times.push_back(Until(timer, [&](const QImage& now) { return now != before; }));
    }
    std::sort(times.begin(), times.end());
    std::printf("hue change in the preview: median %lld ms, slowest %lld ms\n",
                static_cast<long long>(times[times.size() / 2]),
                static_cast<long long>(times.back()));
}

}  // namespace

int main(int argc, char** argv) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    if (argc != 3) return 2;
    QtToolkit::Prepare();
    QApplication application(argc, argv);
    const DiskFileSystem pages;
    const EmbeddedResources resources;
    QtToolkit toolkit(pages, {}, {FindOnDisk, ToWindowsPath});
    QtClipboard clipboard;
    LinuxSystem system;
    DesktopPlatform desktop(DesktopUse::kBatch, system, system.Folders(), toolkit, resources,
                            clipboard);
    desktop.OpenForReading(std::filesystem::absolute(argv[1]));
    Component component;
    component.application = desktop.SharedFrontPage();
    frmThemeMorpho window({desktop.Parts(), component});
    window.Load();
    window.cmbThemeLabel.UserSelect(window.cmbThemeName.FindExact(argv[2]));
    toolkit.WhenFormStands([&](Form& form) {
        // A JPEG would ask for its quality.
        const int background = window.lstImageNames.FindExact("global/background-image");
        if (background != kNoEntry) window.lstImageNames.UserCheck(background, false);
        std::printf("window with preview: %lld ms after the start\n",
                    static_cast<long long>(
                        Until(sinceStart, [](const QImage& now) { return !IsPlain(now); })));
        MeasureHueChanges(window);
        form.Hide();
    });
    window.ShowModal();
    return 0;
}
