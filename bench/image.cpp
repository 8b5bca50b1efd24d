// How long a person waits in the Image Morpho window from a settled slider until the picture is
// painted in its new colours. Prints milliseconds.
// usage: bench_image PICTURE

#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "image_editor/frm_image_morpho.h"
#include "program/linux_system.h"
#include "program/qt_desktop.h"

namespace {

using namespace morpho;

constexpr int kHueSteps = 11;

void MeasureHueChanges(frmImageMorpho& window) {
    std::vector<qint64> times;
    for (int step = 1; step <= kHueSteps; ++step) {
        QElapsedTimer timer;
        timer.start();
        window.slHue.UserSettle(step * 15);
        window.picImage.Refresh();
        QApplication::processEvents();
        times.push_back(timer.elapsed());
    }
    std::sort(times.begin(), times.end());
    std::printf("hue change in the picture: median %lld ms, slowest %lld ms\n",
                static_cast<long long>(times[times.size() / 2]),
                static_cast<long long>(times.back()));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    LinuxSystem system;
    QtDesktop here(system);
    here.editors.component.application = here.editors.desktop.SharedFrontPage();
    frmImageMorpho window(here.editors.program);
    window.OpenAtStart(
        {ImageKind::kDisk, ToWindowsPath(std::filesystem::canonical(argv[1]).string())});
    here.toolkit.WhenFormStands([&](Form& form) {
        if (&form != &window) return form.Hide();  // the About box of the first start
        MeasureHueChanges(window);
        form.Hide();
    });
    window.ShowModal();
    return 0;
}
