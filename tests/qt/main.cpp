#include <gtest/gtest.h>

#include <QApplication>

#include "qt/qt_toolkit.h"

#if defined(__SANITIZE_ADDRESS__)
// Fonts, plugins and the browser keep what they allocated until the process ends, and the browser
// deletes some of its own objects by a smaller type.
extern "C" const char* __asan_default_options() {
    return "detect_leaks=0:new_delete_type_mismatch=0";
}
#endif

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // Also when the tests are only listed, and where there is no screen.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    morpho::QtToolkit::Prepare();
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
