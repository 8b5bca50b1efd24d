#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/qt/qt_toolkit.h"

#if defined(__SANITIZE_ADDRESS__)
// Fonts, plugins and the browser keep what they allocated until the process ends.
extern "C" const char* __asan_default_options() {
    return "detect_leaks=0";
}
#endif

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    morpho::QtToolkit::Prepare();
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
