#include "program/qt_program.h"

#include <iostream>

#include "qt/qt_toolkit.h"

namespace morpho {

namespace {

// Messages of Qt about the environment ("XDG_RUNTIME_DIR not set") do not help the user.
void WriteSevereMessages(QtMsgType type, const QMessageLogContext& /*where*/, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << text.toStdString() << "\n";
}

int& Prepared(int& count) {
    qInstallMessageHandler(WriteSevereMessages);
    QtToolkit::Prepare();
    // By this name of its desktop entry the desktop finds the windows' icon.
    QApplication::setDesktopFileName("org.morpho_editors.Morpho");
    return count;
}

}  // namespace

QtProgram::QtProgram() : application_(Prepared(count_), arguments_) {}

}  // namespace morpho
