#include "addin/add_in.h"

#include "addin/mod_addin_common.h"
#include "frontpage/environment_discovery.h"
#include "platform/environment.h"
#include "platform/platform.h"
#include "shared/log.h"
#include "shared/numbers.h"
#include "shared/settings.h"
#include "theme_editor/frm_prompt_duplicate.h"

namespace morpho {

namespace {

// The releases number their Format menu differently. No control has the number 0.
int FormatMenuId(std::string_view version) {
    const std::string_view major = version.substr(0, 2);
    if (major == "4.") return 62774;
    return major == "5." || major == "6." ? 30006 : 0;
}

}  // namespace

AddIn::AddIn(const Program& program, const AddInNames& names, EditorFactory makeEditor)
    : program_(program), names_(names), makeEditor_(std::move(makeEditor)) {}

void AddIn::OnConnection(std::shared_ptr<Application> application) {
    try {
        Connect(std::move(application));
    } catch (const std::exception& error) {
        try {
            WriteLog(program_, std::string(names_.failure) + error.what());
        } catch (const std::exception&) {
            // The log may be what failed, and the host must not hear of it.
        }
    }
}

void AddIn::Connect(std::shared_ptr<Application> application) {
    connection_.reset();
    connection_ = std::make_shared<HostConnection>(program_.component, std::move(application));
    StartLog();
    const auto bars = program_.component.application->Bars();
    CreateItems(*bars);
    TellMissingItems();
    WriteLog(program_, std::string(names_.prefix) + " connection complete");
}

void AddIn::StartLog() {
    program_.component.logPrefix = names_.prefix;
    // Unlike in the editors, a text that is no number is an error.
    program_.component.logMode =
        CInt(GetSetting(program_.platform, names_.product, kWindowSection, "Logging", "0"));
    WriteLog(program_, "==========================");
    WriteLog(program_, "Connecting " + std::string(names_.prefix) + ": " +
                           GetVersionText(program_.platform, true));
    WriteLog(program_, "OS info: " + GetOSInfo(program_.platform));
    WriteLog(program_, GetFrontPageInfo(program_));
}

void AddIn::CreateMenuItem(CommandBars& bars, CommandItem& item, const std::string& tag,
                           const std::string& caption) {
    const auto menuBar = bars.ActiveMenuBar();
    CommandBarItem wanted;
    wanted.bar = menuBar.get();
    wanted.tag = tag;
    wanted.caption = caption;
    wanted.refPopup = FormatMenuId(program_.component.application->Version());
    item.Set(CreateCommandBarItem(program_, wanted), [this] { ShowEditor(); });
}

void AddIn::TellMissingItems() {
    const std::string message(MissingItems());
    const Platform& platform = program_.platform;
    if (GetSetting(platform, names_.product, kWindowSection, names_.noErrorKey, "") == "0") return;
    if (message.empty()) return;
    frmPromptDuplicate notice(program_);
    if (!notice.ShowDuplicateNoticeDialog(message, names_.product, kCriticalIcon))
        SaveSetting(platform, names_.product, kWindowSection, names_.noErrorKey, "0");
}

void AddIn::OnDisconnection() {
    DeleteSetting(program_.platform, names_.product, kWindowSection, "Splash");
    for (CommandItem* item : Items())
        item->Delete();
    connection_.reset();
}

void AddIn::ShowEditor() {
    // A host that pumps messages may let go of the add-in while the editor is open.
    const auto alive = weak_from_this().lock();
    try {
        OpenEditor();
    } catch (const std::exception& error) {
        editor_.reset();
        const RunTimeError known = AsRunTimeError(error);
        const Platform& platform = program_.platform;
        try {
            platform.toolkit.ShowMessage(
                nullptr,
                "An error occurred in the COM add-in named '" +
                    platform.environment.Version().title + "'.\r\nError #:" +
                    std::to_string(static_cast<int>(known.Number())) + "\r\n" + known.what(),
                kOkOnly | kCriticalIcon, "Error!");
        } catch (const std::exception&) {
            // Without a screen there is nobody to tell.
        }
    }
}

void AddIn::OpenEditor() {
    // A host that pumps messages may deliver a second click while the editor is open.
    if (editor_ && editor_->IsVisible()) return editor_->BringToTop();
    // The editor needs the host even if the add-in is disconnected meanwhile.
    const auto connected = connection_;
    if (!editor_) editor_ = makeEditor_();
    editor_->ShowModal();
    if (!editor_->IsLoaded()) editor_.reset();
}

}  // namespace morpho
