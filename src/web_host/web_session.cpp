#include "web_host/web_session.h"

#include "text/ignoring_case.h"
#include "web_host/save_repair.h"

namespace morpho {

WebSession::WebSession(Disk& disk, WebOptions options, WebReports::Log log)
    : disk_(disk), options_(std::move(options)), files_(disk, options_.path) {
    reports_.SetLog(std::move(log));
    completedTheme_ = RepairSave(*this);
    repairs_ = reports_.Take();
    listed_ = UnpackThemes(disk_, files_,
                           {options_.unpackFolder, options_.onlyTheme, options_.stores.forWeb});
}

WebSession::~WebSession() {
    if (hasSaved_) RemoveEndedRecord(*this);
}

UnpackOptions WebSession::OptionsFor(const std::optional<std::string>& onlyTheme) const {
    return {options_.unpackFolder, onlyTheme, {}, true};
}

void WebSession::RefreshThemes() {
    listed_ = UnpackThemes(disk_, files_, OptionsFor(options_.onlyTheme));
}

bool WebSession::MakeThemeFresh(const std::string& name) {
    const auto theme = files_.FindFolder({std::string(kThemesFolder), name});
    if (!theme) return false;
    const auto unpacked = disk_.OpenOrCreate(options_.unpackFolder);
    const auto earlier = unpacked->Find(name);
    if (earlier) unpacked->RemoveFolder(earlier->name);
    return UnpackTheme(disk_, *theme, earlier ? earlier->name : name, options_.unpackFolder);
}

}  // namespace morpho
