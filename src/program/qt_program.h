#pragma once

#include <QApplication>

namespace morpho {

// Qt's part of the program, to be made once, before any window. Messages of Qt about the
// environment are not shown.
class QtProgram {
  public:
    QtProgram();

  private:
    // A QApplication needs arguments that outlive it; the program's own are not for it.
    char name_[7] = "morpho";
    char* arguments_[2] = {name_, nullptr};
    int count_ = 1;
    QApplication application_;
};

}  // namespace morpho
