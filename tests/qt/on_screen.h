#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <functional>

#include "qt/qt_toolkit.h"
#include "support/fake_file_system.h"
#include "support/peer_contract.h"

namespace morpho::test {

// Shows forms and works them through their widgets.
class OnScreen : public testing::Test {
  protected:
    // Shows the form and, once it stands, runs the script on its window; then hides the form.
    void Show(Form& form, const std::function<void(QWidget&)>& script) {
        WhenStands(form.Name(), script);
        form.ShowModal();
    }

    // Runs the script on the window of a form that another one will show.
    void WhenStands(const std::string& form, const std::function<void(QWidget&)>& script) {
        scripts_[form] = script;
    }

    // The widget of a control, as its own class.
    template <typename Widget = QWidget>
    static Widget& Find(QWidget& window, const Control& control) {
        auto* const widget = window.findChild<Widget*>(QString::fromStdString(control.Name()));
        if (widget == nullptr) throw std::logic_error("no widget for " + control.Name());
        return *widget;
    }

    // Lets everything happen that is waiting, and the pause that a slider waits for.
    static void Pause() { QTest::qWait(120); }

    FakeFileSystem files_;
    // Dialogs call the files by the paths of the disk.
    static std::string SamePath(std::string_view path) { return std::string(path); }
    QtToolkit toolkit_{files_, {}, {SamePath, SamePath}};

  private:
    void SetUp() override {
        toolkit_.WhenFormStands([this](Form& form) {
            const auto script = scripts_.find(form.Name());
            for (QWidget* const window : QApplication::topLevelWidgets()) {
                if (script != scripts_.end() && window->objectName().toStdString() == form.Name())
                    script->second(*window);
            }
            form.Hide();
        });
    }

    std::map<std::string, std::function<void(QWidget&)>> scripts_;
};

// The same with the gallery of all kinds.
class GalleryOnScreen : public OnScreen {
  protected:
    void Show(const std::function<void(QWidget&)>& script) {
        OnScreen::Show(form_, [&](QWidget& window) {
            form_.events.clear();
            script(window);
            form_.answer = {};
        });
    }

    // The name of the control that has the focus.
    static std::string Focus(const QWidget& window) {
        const QWidget* const focus = window.focusWidget();
        return focus == nullptr ? "" : focus->objectName().toStdString();
    }

    Gallery form_{toolkit_};
};

}  // namespace morpho::test
