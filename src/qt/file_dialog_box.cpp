#include "qt/file_dialog_box.h"

#include <QFileDialog>

#include "qt/qt_text.h"

namespace morpho {

namespace {

// The patterns of Windows: case does not matter, and "*.*" also means files without a ".".
QString AnyCase(const std::string& pattern) {
    if (pattern == "*.*") return "*";
    QString anyCase;
    for (const QChar character : ToQt(pattern)) {
        const QChar lower = character.toLower(), upper = character.toUpper();
        anyCase += lower == upper ? QString(character) : QString("[") + lower + upper + "]";
    }
    return anyCase;
}

QFileDialog::FileMode ModeOf(const FileDialog& request) {
    const bool mustExist =
        request.mode == FileDialog::Mode::kOpen && (request.flags & kFileMustExist) != 0;
    return mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile;
}

}  // namespace

// The patterns stand in parentheses after the description, which may itself end with some.
QStringList NameFiltersOf(std::string_view filter) {
    QStringList filters;
    for (const FileType& type : ReadFilter(filter)) {
        QStringList patterns;
        for (const std::string& pattern : type.patterns)
            patterns += AnyCase(pattern);
        filters += ToQt(type.description) + " (" + patterns.join(' ') + ")";
    }
    return filters;
}

std::optional<std::string> RunFileDialog(QWidget* parent, const FileDialog& request,
                                         const PathNames& paths) {
    QFileDialog box(parent, ToQt(request.title));
    box.setWindowModality(Qt::ApplicationModal);
    box.setAcceptMode(request.mode == FileDialog::Mode::kSave ? QFileDialog::AcceptSave
                                                              : QFileDialog::AcceptOpen);
    box.setFileMode(ModeOf(request));
    box.setOption(QFileDialog::HideNameFilterDetails);
    box.setOption(QFileDialog::DontConfirmOverwrite, (request.flags & kOverwritePrompt) == 0);
    box.setNameFilters(NameFiltersOf(request.filter));
    if (const auto folder = paths.toSystem(request.folder)) box.setDirectory(ToQt(*folder));
    if (!request.name.empty()) box.selectFile(ToQt(request.name));
    if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return std::nullopt;
    return paths.toWindows(FromQt(box.selectedFiles().front()));
}

}  // namespace morpho
