#include "qt/qt_toolkit.h"

#include <unistd.h>

#include <QApplication>
#include <QIcon>
#include <QImageReader>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPixmap>
#include <QScreen>
#include <QSettings>
#include <algorithm>

#include "forms/picture_size.h"
#include "qt/form_window.h"
#include "qt/look.h"
#include "qt/qt_text.h"
#include "qt/window_picture.h"

namespace morpho {

namespace {

QMessageBox::Icon ToQt(int icon) {
    switch (icon) {
        case kCriticalIcon:
            return QMessageBox::Critical;
        case kQuestionIcon:
            return QMessageBox::Question;
        case kInformationIcon:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

// The buttons; Enter presses the first unless the flags name the second, Escape the last.
void AddButtons(QMessageBox& box, int flags) {
    switch (ButtonsOf(flags)) {
        case kYesNoCancel:
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
            box.setDefaultButton(QMessageBox::Yes);
            box.setEscapeButton(QMessageBox::Cancel);
            break;
        case kYesNo:
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
            box.setDefaultButton(QMessageBox::Yes);
            box.setEscapeButton(QMessageBox::No);
            break;
        default:
            box.setStandardButtons(QMessageBox::Ok);
            box.setDefaultButton(QMessageBox::Ok);
            box.setEscapeButton(QMessageBox::Ok);
            return;
    }
    if (flags & kSecondButtonDefault) box.setDefaultButton(QMessageBox::No);
}

Answer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::kYes;
        case QMessageBox::No:
            return Answer::kNo;
        case QMessageBox::Cancel:
            return Answer::kCancel;
        default:
            return Answer::kOk;
    }
}

void AppendChromiumFlags(const QByteArray& flags) {
    const QByteArray given = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", given.isEmpty() ? flags : given + ' ' + flags);
}

}  // namespace

void QtToolkit::Prepare() {
    PageServer::RegisterScheme();
    // The browser writes messages about itself at every start.
    QLoggingCategory::setFilterRules("default.info=false\nqt.webenginecontext.info=false");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    // Qt's file dialog would keep its history in a file of the person's own. The program writes to
    // its own folders only, so the history goes where nothing can be written.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
    // The browser's sandbox refuses to run as root.
    if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // Pages are small and still: painting them without the graphics card starts faster, is the same
    // everywhere, and keeps every other widget's painting out of the card's frame rate.
    AppendChromiumFlags("--disable-gpu");
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND")) qputenv("QT_QUICK_BACKEND", "software");
}

QtToolkit::QtToolkit(const FileSystem& files, std::string_view icon, PathNames paths)
    : pages_(files), paths_(std::move(paths)) {
    ApplyLook();
    QImageReader::setAllocationLimit(kMaxShownMegabytes);
    QPixmap pixmap;
    if (!icon.empty() && pixmap.loadFromData(reinterpret_cast<const uchar*>(icon.data()),
                                             static_cast<uint>(icon.size())))
        QApplication::setWindowIcon(QIcon(pixmap));
}

QtToolkit::~QtToolkit() = default;

void QtToolkit::PlaceAtStart(Form& form) {
    if (const FormWindow* const window = WindowOf(&form)) form.SetChrome(window->Chrome());
    const QWidget* const owner =
        form.Start() == StartPosition::kCenterOwner ? TopWindow() : nullptr;
    const QRect area = owner != nullptr ? owner->frameGeometry()
                                        : QGuiApplication::primaryScreen()->availableGeometry();
    const Rectangle middle = Centered(form.Bounds(), ToTwips(area));
    form.SetPosition(middle.left, middle.top);
}

void QtToolkit::RunModal(Form& form) {
    FormWindow window(form, TopWindow(), pages_);
    windows_.push_back(&window);
    window.RunUntilHidden([&] {
        if (whenFormStands_) whenFormStands_(form);
    });
    windows_.pop_back();
}

Answer QtToolkit::ShowMessage(Form* owner, std::string_view text, int flags,
                              std::string_view title) {
    QMessageBox box(ParentOfBox(owner));
    box.setWindowModality(Qt::ApplicationModal);
    box.setTextFormat(Qt::PlainText);
    box.setText(morpho::ToQt(text).remove('\r'));
    box.setWindowTitle(morpho::ToQt(title));
    box.setIcon(ToQt(IconOf(flags)));
    AddButtons(box, flags);
    return AnswerOf(box.exec());
}

std::optional<std::string> QtToolkit::ShowFileDialog(Form* owner, const FileDialog& request) {
    return RunFileDialog(ParentOfBox(owner), request, paths_);
}

Rectangle QtToolkit::NormalPlacement(const Form& form) const {
    const FormWindow* const window = WindowOf(&form);
    return window != nullptr ? window->NormalPlacement() : form.Bounds();
}

CapturedWindow QtToolkit::ReleaseCapture() {
    QWidget* const holder = QWidget::mouseGrabber();
    if (holder != nullptr) holder->releaseMouse();
    return holder;
}

void QtToolkit::SetCapture(CapturedWindow window) {
    // The window may have gone meanwhile.
    const QWidgetList alive = QApplication::allWidgets();
    const auto holder = std::find(alive.begin(), alive.end(), window);
    if (holder != alive.end() && (*holder)->isVisible()) (*holder)->grabMouse();
}

QImage QtToolkit::PictureOf(const Form& form, bool withDialogs) {
    QWidget* const window = WindowOf(&form);
    if (window == nullptr || !window->isVisible()) return {};
    return PictureOfWindow(window, withDialogs);
}

bool QtToolkit::SavePicture(const Form& form, const std::string& file, bool withDialogs) {
    const QImage picture = PictureOf(form, withDialogs);
    return !picture.isNull() && picture.save(QString::fromStdString(file), "PNG");
}

FormWindow* QtToolkit::WindowOf(const Form* form) const {
    const auto found =
        std::find_if(windows_.rbegin(), windows_.rend(),
                     [&](const FormWindow* window) { return &window->Model() == form; });
    return found == windows_.rend() ? nullptr : *found;
}

QWidget* QtToolkit::ParentOfBox(const Form* owner) const {
    QWidget* const window = WindowOf(owner);
    return window != nullptr && window->isVisible() ? window : TopWindow();
}

QWidget* QtToolkit::TopWindow() const {
    const auto found = std::find_if(windows_.rbegin(), windows_.rend(),
                                    [](const FormWindow* window) { return window->isVisible(); });
    return found == windows_.rend() ? QApplication::activeWindow() : *found;
}

}  // namespace morpho
