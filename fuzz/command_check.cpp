#include "fuzz/command_check.h"

#include <algorithm>

#include "fuzz/fuzz.h"
#include "web_host/disk.h"

using namespace morpho;

namespace {

const std::string kThemes = "here/web/_themes/";

bool IsSave(const Request& request) {
    if (std::holds_alternative<ApplyRequest>(request)) return true;
    const auto* const recolor = std::get_if<RecolorRequest>(&request);
    return recolor && !recolor->dryRun && recolor->outcome.kind != Outcome::Kind::kExport;
}

// New files and folders beside what was there are what such a command is for.
bool MakesFiles(const Request& request) {
    const auto* const recolor = std::get_if<RecolorRequest>(&request);
    return IsSave(request) || std::holds_alternative<PicturesRequest>(request) ||
           (recolor && !recolor->dryRun);
}

bool IsWholePicture(const std::string& bytes) {
    return (bytes.starts_with("GIF8") && bytes.ends_with(";")) ||
           (bytes.starts_with("\xFF\xD8") && bytes.ends_with("\xFF\xD9"));
}

void CheckFile(const std::string& name, const std::string& bytes) {
    const bool isPicture = name.ends_with(".gif") || name.ends_with(".jpg");
    if (isPicture && !name.starts_with("beside/"))
        Require(IsWholePicture(bytes), "A picture is not whole.");
    if (name.starts_with("here/web/") && name.ends_with(".htm"))
        Require(bytes.starts_with("<html>") && bytes.ends_with("</html>"), "A page is not whole.");
}

// Each theme has its description and as many files as the others.
void CheckThemes(const Tree& before, const Tree& after) {
    const auto filesOf = [](const Tree& tree, const std::string& folder) {
        return std::count_if(tree.begin(), tree.end(), [&](const auto& entry) {
            return entry.first.starts_with(folder) && !entry.first.ends_with("/");
        });
    };
    const auto expected = filesOf(before, kThemes + "orrery/");
    for (const auto& [name, bytes] : after) {
        if (!name.starts_with(kThemes) || name.size() == kThemes.size() || !name.ends_with("/"))
            continue;
        const std::string theme = name.substr(kThemes.size(), name.size() - kThemes.size() - 1);
        Require(after.contains(name + theme + ".inf"), "A theme has no description.");
        Require(filesOf(after, name) == expected, "A theme has more or fewer files.");
    }
}

}  // namespace

void CheckCommand(const Request& request, int status, const Tree& before, const Tree& after) {
    if (!MakesFiles(request) || (IsSave(request) && status != 0))
        Require(before == after, "A command that saves nothing has changed something.");
    for (const auto& [name, bytes] : before) {
        Require(after.contains(name), "A file is gone.");
        if (name.starts_with("beside/"))
            Require(after.at(name) == bytes, "Something beside the folder has changed.");
    }
    for (const auto& [name, bytes] : after) {
        Require(name.starts_with("here/") || before.contains(name), "A file is outside.");
        Require(!IsTemporaryName(std::filesystem::path(name).filename().string()),
                "A temporary file is left.");
        if (!name.ends_with("/")) CheckFile(name, bytes);
    }
    if (IsSave(request)) CheckThemes(before, after);
}
