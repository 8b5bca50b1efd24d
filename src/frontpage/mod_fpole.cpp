#include "frontpage/mod_fpole.h"

#include <exception>
#include <initializer_list>
#include <vector>

#include "frontpage/environment_discovery.h"
#include "platform/automation.h"
#include "platform/platform.h"
#include "text/ignoring_case.h"
#include "text/parsed_number.h"

namespace morpho {

namespace {

AutomationValue CallExplorer(const Program& program, std::string_view method,
                             std::initializer_list<AutomationValue> arguments) {
    try {
        const auto explorer =
            program.platform.automation.CreateObject(program.component.explorerProgId);
        if (!explorer) return {};
        return explorer->Call(method, std::vector<AutomationValue>(arguments));
    } catch (const std::exception&) {
        return {};
    }
}

// Converts like classic Basic: True is -1, and a text is the number or "True" that it spells.
std::int32_t AsNumber(const AutomationValue& value) {
    if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? -1 : 0;
    const auto* text = std::get_if<std::string>(&value);
    if (text == nullptr) return 0;
    if (EqualIgnoringAsciiCase(*text, "true")) return -1;
    return ParsedNumber<std::int32_t>(*text).value_or(0);
}

}  // namespace

void SetFrontPageProgIDs(Component& component, std::string_view version) {
    component.explorerProgId = ExplorerProgId(version);
    component.editorProgId = EditorProgId(version);
}

void FPBringToTop(const Program& program) {
    CallExplorer(program, "vtiBringToTop", {});
}

std::int32_t FPCreateFolder(const Program& program, const std::string& folderUrl) {
    return AsNumber(CallExplorer(program, "vtiCreateFolder", {folderUrl}));
}

std::int32_t FPGetDocToFile(const Program& program, const std::string& documentUrl,
                            const std::string& filePath) {
    return AsNumber(CallExplorer(program, "vtiGetDocToFile", {documentUrl, filePath}));
}

bool FPIsFolderInWeb(const Program& program, const std::string& folderUrl) {
    return AsNumber(CallExplorer(program, "vtiIsFolderInWeb", {folderUrl})) != 0;
}

std::int32_t FPMakeThemeFresh(const Program& program, const std::string& firstText,
                              const std::string& secondText, bool firstFlag, bool secondFlag) {
    return AsNumber(
        CallExplorer(program, "vtiMakeThemeFresh", {firstText, secondText, firstFlag, secondFlag}));
}

}  // namespace morpho
