#include "theme_editor/description_files.h"

#include <algorithm>

#include "formats/theme_description.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "shared/mod_shared_code.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

bool IsDescription(const FileEntry& entry) {
    const std::string name = Folded(entry.name);
    return !entry.IsFolder() &&
           std::any_of(kDescriptionExtensions.begin(), kDescriptionExtensions.end(),
                       [&](std::string_view extension) { return name.ends_with(extension); });
}

}  // namespace

bool IsReadOnlyTheme(const Platform& platform, const std::string& inf) {
    try {
        return ThemeDescription(platform.codePage, platform.files.ReadFile(inf)).IsReadOnly();
    } catch (const RunTimeError&) {
        // A description that cannot be read protects nothing; the save fails when it needs it.
        return false;
    }
}

void RenameDescription(const Platform& platform, const std::string& folder, const std::string& name,
                       const std::string& newName, const std::string& newTitle) {
    FileSystem& files = platform.files;
    ThemeDescription description(platform.codePage, files.ReadFile(folder + name + ".inf"));
    description.SetTitle(newTitle);
    files.WriteFile(folder + newName + ".inf", description.Bytes());
    if (files.Find(folder + name + ".utf8"))
        files.WriteFile(folder + newName + ".utf8", description.Utf8Bytes());
    if (EqualIgnoringCase(name, newName)) return;
    for (const std::string_view extension : kDescriptionExtensions) {
        const std::string old = folder + name + std::string(extension);
        if (files.Find(old)) files.Delete(old);
    }
}

void RestoreDescription(const Platform& platform, const std::string& folder,
                        const std::string& originals, const std::string& name) {
    FileSystem& files = platform.files;
    for (const std::string_view extension : kDescriptionExtensions) {
        const std::string file = name + std::string(extension);
        if (!files.Find(folder + file) && files.Find(originals + file))
            files.Copy(originals + file, folder + file);
    }
    for (const FileEntry& entry : files.List(folder)) {
        const bool isOwn = EqualIgnoringCase(entry.name.substr(0, entry.name.rfind('.')), name);
        if (IsDescription(entry) && !isOwn && !files.Find(originals + entry.name))
            files.Delete(folder + entry.name);
    }
}

void WriteThemeDescription(const Platform& platform, const std::string& sourceInf,
                           const std::string& destinationInf, const std::string& destinationFolder,
                           const std::string& title) {
    ThemeDescription description(platform.codePage, platform.files.ReadFile(sourceInf));
    description.SetTitle(title);
    description.SetWritable();
    platform.files.WriteFile(destinationInf, description.Bytes());
    if (!FolderExists(platform.files, destinationFolder))
        platform.files.CreateFolder(destinationFolder);
}

}  // namespace morpho
