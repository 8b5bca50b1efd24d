#pragma once

#include <QImage>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/toolkit.h"
#include "qt/file_dialog_box.h"
#include "qt/page_server.h"

namespace morpho {

class FormWindow;

// Shows forms with Qt Widgets. A program calls Prepare, makes its QApplication, then one toolkit.
class QtToolkit : public Toolkit {
  public:
    // To be called before there is a QApplication: sets up the browser's address scheme and
    // environment.
    static void Prepare();

    // Gives the application the look that the forms are laid out for. `icon` holds the program's
    // icon, an encoded picture, or nothing. `files` serves the browser controls and must outlive
    // the toolkit. `paths` serves the file dialogs.
    QtToolkit(const FileSystem& files, std::string_view icon, PathNames paths);
    ~QtToolkit() override;

    void PlaceAtStart(Form& form) override;
    void RunModal(Form& form) override;
    Answer ShowMessage(Form* owner, std::string_view text, int flags,
                       std::string_view title) override;
    std::optional<std::string> ShowFileDialog(Form* owner, const FileDialog& request) override;
    Rectangle NormalPlacement(const Form& form) const override;
    CapturedWindow ReleaseCapture() override;
    void SetCapture(CapturedWindow window) override;

    // Calls `stands` whenever a form is on the screen and its first Form_Paint is over. A script
    // can then do what a person would.
    void WhenFormStands(std::function<void(Form&)> stands) { whenFormStands_ = std::move(stands); }
    // What the screen shows of a form now, its pages painted, with the dialogs over it if wanted;
    // a null image when the form is not shown. Works without a screen.
    QImage PictureOf(const Form& form, bool withDialogs = false);
    // Writes that picture to a PNG file at this path of the operating system.
    bool SavePicture(const Form& form, const std::string& file, bool withDialogs = false);
    // Serves the pages of browser controls; for other views of pages, too.
    PageServer& Pages() { return pages_; }

  private:
    FormWindow* WindowOf(const Form* form) const;
    QWidget* TopWindow() const;
    // The window that a box of this form stands on.
    QWidget* ParentOfBox(const Form* owner) const;

    PageServer pages_;
    PathNames paths_;
    std::vector<FormWindow*> windows_;  // nested, the innermost last
    std::function<void(Form&)> whenFormStands_;
};

}  // namespace morpho
