#pragma once

#include <QStringList>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "forms/file_dialog.h"

class QWidget;

namespace morpho {

// Translates between the Windows paths of the forms and the paths of the operating system.
struct PathNames {
    // Nothing for a Windows path that the operating system has no path for.
    std::function<std::optional<std::string>(std::string_view windowsPath)> toSystem;
    std::function<std::string(std::string_view systemPath)> toWindows;
};

// The filters of QFileDialog, with patterns that match in any letter case.
QStringList NameFiltersOf(std::string_view filter);

// Shows the common file dialog over `parent` and returns the chosen Windows path; nothing when the
// person cancels.
std::optional<std::string> RunFileDialog(QWidget* parent, const FileDialog& request,
                                         const PathNames& paths);

}  // namespace morpho
