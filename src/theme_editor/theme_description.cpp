#include "theme_editor/theme_description.h"

#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/profile_files.h"
#include "shared/mod_shared_code.h"
#include "text/ignoring_case.h"

namespace morpho {

namespace {

constexpr std::string_view kInfo = "info";
constexpr std::size_t kReadOnlyChars = 10;

// The one title holds for every language.
void WriteTitles(const Platform& platform, const std::string& inf, const std::string& title) {
    platform.profileFiles.WriteSection(inf, "Titles", {{"1033", title}});
    platform.profileFiles.Flush(inf);
}

}  // namespace

bool IsReadOnlyTheme(const Platform& platform, const std::string& inf) {
    const std::string value =
        platform.profileFiles.ReadString(inf, kInfo, "Readonly", "false", kReadOnlyChars);
    return EqualIgnoringAsciiCase(value, "true") || value == "1";
}

void SetThemeTitle(const Platform& platform, const std::string& inf, const std::string& title) {
    platform.profileFiles.WriteString(inf, kInfo, "title", title);
    WriteTitles(platform, inf, title);
}

void WriteThemeDescription(const Platform& platform, const std::string& sourceInf,
                           const std::string& destinationInf, const std::string& destinationFolder,
                           const std::string& title) {
    platform.files.Copy(sourceInf, destinationInf);
    platform.profileFiles.WriteString(destinationInf, kInfo, "title", title);
    platform.profileFiles.WriteString(destinationInf, kInfo, "readonly", "0");
    WriteTitles(platform, destinationInf, title);
    if (!FolderExists(platform.files, destinationFolder))
        platform.files.CreateFolder(destinationFolder);
}

}  // namespace morpho
