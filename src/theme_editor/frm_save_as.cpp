#include "theme_editor/frm_save_as.h"

#include <algorithm>
#include <cstdint>

#include "formats/plain_file_name.h"
#include "formats/theme_description.h"
#include "platform/code_page.h"
#include "platform/file_system.h"
#include "platform/platform.h"
#include "platform/run_time_error.h"
#include "shared/mod_shared_code.h"
#include "text/ascii.h"
#include "text/ignoring_case.h"
#include "text/parsed_number.h"
#include "text/trim.h"
#include "theme_editor/installed_theme.h"
#include "theme_editor/theme_installation.h"
#include "theme_editor/theme_product.h"

namespace morpho {

namespace {

// Longer numbers are left as they are: one of this many digits fits the counter.
constexpr std::size_t kMostDigits = 18;

// The first text of the form <base without its digits><number> that the list does not hold. The
// number counts on from the base's own, so that "Blends2" becomes "Blends3", and "Blends"
// "Blends2".
std::string UniqueSuggestion(std::string_view base, const ListBox& list) {
    std::size_t digits = 0;
    while (digits < std::min(base.size(), kMostDigits) && base[base.size() - 1 - digits] >= '0' &&
           base[base.size() - 1 - digits] <= '9')
        ++digits;
    const std::string prefix(base.substr(0, base.size() - digits));
    std::int64_t counter = ParsedNumber<std::int64_t>(base.substr(prefix.size())).value_or(1);
    std::string candidate;
    do {
        candidate = prefix + std::to_string(++counter);
    } while (list.FindExact(candidate) != kNoEntry);
    return candidate;
}

std::string WithoutControls(std::string text) {
    std::replace_if(text.begin(), text.end(), IsControl, '_');
    return text;
}

// The text with "_" for all that the names in packages cannot hold: characters that their code page
// lacks, and control characters.
std::string StorableName(const CodePage& codePage, std::string_view text) {
    return WithoutControls(codePage.ToText(codePage.ToBytes(text, [](char32_t) { return "_"; })));
}

// A page whose theme is called "none" has no theme.
bool CanNameATheme(const CodePage& codePage, const std::string& name) {
    return IsValidFileName(name) && IsPlainFileName(name) && !EqualIgnoringCase(name, "none") &&
           StorableName(codePage, name) == name;
}

// Whether a description gives back the same title; it takes a pair of quotes away.
bool CanBeATitle(const CodePage& codePage, const std::string& title) {
    ThemeDescription description(codePage, {});
    description.SetTitle(title);
    return WithoutControls(title) == title && description.Title() == title;
}

// The title that the description gives; empty when it cannot be read.
std::string TitleIn(const Platform& platform, const std::string& inf) {
    try {
        return ThemeDescription(platform.codePage, platform.files.ReadFile(inf)).Title();
    } catch (const RunTimeError&) {
        return {};
    }
}

}  // namespace

frmSaveAs::frmSaveAs(const Program& program)
    : LoggedForm(program, {"frmSaveAs", "Save Theme As...", {5700, 2595}}),
      lblMessage(*this, {.name = "lblMessage", .place = {180, 150, 5340, 450}}),
      lblFolder(*this,
                {.name = "lblFolder", .place = {180, 757, 1200, 225}, .caption = "Theme &name:"}),
      txtThemeName(*this, {.name = "txtThemeName", .place = {1440, 705, 4080, 315}}),
      lbllongname(
          *this,
          {.name = "lbllongname", .place = {180, 1177, 1200, 225}, .caption = "Theme &title:"}),
      txtThemeTitle(*this, {.name = "txtThemeTitle", .place = {1440, 1125, 4080, 315}}),
      chkApplyToWeb(*this, {.name = "chkApplyToWeb",
                            .place = {1440, 1545, 4080, 285},
                            .caption = "&Apply to entire web"}),
      cmdSave(
          *this, {.name = "cmdSave", .place = {3135, 2055, 1140, 375}, .caption = "Save"},
          [this] { cmdSave_Click(); }, ButtonRole::kDefault),
      cmdCancel(
          *this, {.name = "cmdCancel", .place = {4380, 2055, 1140, 375}, .caption = "Cancel"},
          [this] { cmdCancel_Click(); }, ButtonRole::kCancel),
      lstAppThemeName(*this, {.name = "lstAppThemeName", .place = {180, 1545, 540, 315}}),
      lstAppThemeTitle(*this, {.name = "lstAppThemeTitle", .place = {780, 1545, 540, 315}}) {
    lstAppThemeName.SetVisible(false);
    lstAppThemeTitle.SetVisible(false);
}

bool frmSaveAs::RunModal(std::string_view prompt, std::string& name, std::string& title,
                         bool& applyToWeb) {
    prompt_ = prompt;
    name_ = name;
    title_ = title;
    applyToWeb_ = applyToWeb;
    saved_ = false;
    ShowModal();
    if (!saved_) return false;
    name = name_;
    title = title_;
    applyToWeb = applyToWeb_;
    return true;
}

void frmSaveAs::Form_Load() {
    lblMessage.SetCaption(prompt_);
    lstAppThemeName.Clear();
    lstAppThemeTitle.Clear();
    for (const bool shared : {true, false})
        ListThemesOf(GetThemesFolder(TheProgram(), shared));
    const CodePage& codePage = ThePlatform().codePage;
    txtThemeTitle.SetText(UniqueSuggestion(WithoutControls(title_), lstAppThemeTitle));
    txtThemeName.SetText(UniqueSuggestion(StorableName(codePage, name_), lstAppThemeName));
    chkApplyToWeb.SetValue(applyToWeb_);
}

void frmSaveAs::TellError(std::string_view handler, const RunTimeError& error) {
    if (handler != "Form_Load") return;
    // Nothing would keep the person from taking the name of an installed theme.
    cmdSave.SetEnabled(false);
    MsgBox("The installed themes cannot be listed.\r\n" + std::string(error.what()),
           kOkOnly | kCriticalIcon, kThemeProduct);
}

void frmSaveAs::ListThemesOf(const std::string& themesFolder) {
    const FileSystem& files = ThePlatform().files;
    // Until the first theme is saved, the user may have no folder of themes.
    if (themesFolder.empty() || !FolderExists(files, themesFolder)) return;
    const std::string folder = WithSeparator(themesFolder);
    for (const FileEntry& entry : files.List(folder)) {
        // A folder that has any other attribute is deliberately not listed.
        if (entry.attributes != kFolderAttribute) continue;
        if (IsHalfInstalled(files, folder, entry.name)) continue;
        const std::string inf = folder + entry.name + "\\" + entry.name + ".inf";
        lstAppThemeName.AddItem(entry.name);
        lstAppThemeTitle.AddItem(TitleIn(ThePlatform(), inf));
    }
}

void frmSaveAs::cmdSave_Click() {
    if (!AcceptEntries()) return;
    name_ = txtThemeName.Text();
    title_ = txtThemeTitle.Text();
    applyToWeb_ = chkApplyToWeb.Value();
    saved_ = true;
    Unload();
}

bool frmSaveAs::AcceptEntries() {
    const CodePage& codePage = ThePlatform().codePage;
    txtThemeName.SetText(Trim(txtThemeName.Text()));
    const std::string& name = txtThemeName.Text();
    if (name.empty()) return Refuse("You must specify a theme name.", txtThemeName);
    if (!CanNameATheme(codePage, name))
        return Refuse("Theme name must be a valid file name.", txtThemeName);
    txtThemeTitle.SetText(Trim(txtThemeTitle.Text()));
    const std::string& title = txtThemeTitle.Text();
    if (title.empty()) return Refuse("You must specify a theme title.", txtThemeTitle);
    if (!CanBeATitle(codePage, title))
        return Refuse("Theme title holds characters that cannot be saved.", txtThemeTitle);
    if (lstAppThemeName.FindExact(name) != kNoEntry)
        return Refuse(
            "This theme name is being used by another theme. Please specify another name.",
            txtThemeName);
    if (lstAppThemeTitle.FindExact(title) != kNoEntry)
        return Refuse(
            "This theme title is being used by another theme. Please specify another title.",
            txtThemeTitle);
    return true;
}

bool frmSaveAs::Refuse(std::string_view reason, TextBox& box) {
    MsgBox(reason, kOkOnly | kCriticalIcon, kThemeProduct);
    box.SetFocus();
    return false;
}

void frmSaveAs::cmdCancel_Click() {
    saved_ = false;
    Unload();
}

}  // namespace morpho
