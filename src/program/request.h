#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace morpho {

// What a command line asks for.

// One step of a batch: an action that a person could do in the window.
struct Step {
    enum class Kind {
        kSelect,
        kBrightness,
        kSaturation,
        kHue,
        kQuality,
        kApply,
        kUndo,
        kRedo,
        kReset
    };
    Kind kind = Kind::kApply;
    std::vector<std::string> words =
        {};          // kSelect: "all", "none", "active", "normal" or element keys
    int number = 0;  // a slider's value, or the JPEG quality
};

struct WebRequest {
    std::filesystem::path web;  // empty: the last one
    std::string hostVersion = "6.0";
};

struct ThemeRequest {
    std::filesystem::path web;
    std::string theme;  // empty: the web's first
};

struct ListRequest {
    std::filesystem::path web;
    std::string theme;  // empty: all
    bool json = false;
};

// How a batch ends.
struct Outcome {
    enum class Kind { kExport, kSave, kSaveAs };
    Kind kind = Kind::kExport;
    std::filesystem::path exportFolder;  // kExport
    std::string name;                    // kSaveAs; "auto": the one that the dialog suggests
    std::optional<std::string> title;    // kSaveAs; nothing: the one that the dialog suggests
    bool applyToWeb = false;             // kSaveAs
    bool applyToPages = false;           // with applyToWeb: also to pages that name their theme
};

struct RecolorRequest {
    std::filesystem::path web;
    std::string theme;
    std::vector<Step> steps;
    Outcome outcome;
    std::filesystem::path picture;  // where to draw the window; empty: nowhere
    bool json = false;
    bool dryRun = false;  // only tell what would be written
};

struct ApplyRequest {
    std::filesystem::path web;
    std::string theme;       // of the web, or the user's own
    std::string inPlaceOf;   // the theme of the pages that get it; empty: that of the web
    bool overwrite = false;  // the user's own replaces another one of that name in the web
};

// The command line asks for help or the version: `text` is the answer.
struct TextRequest {
    std::string text;
};

using Request =
    std::variant<TextRequest, WebRequest, ThemeRequest, ListRequest, RecolorRequest, ApplyRequest>;

// A command line that cannot be understood (status 2), or a request that cannot be carried out
// (status 1). The text is one sentence, UTF-8.
class CommandError : public std::runtime_error {
  public:
    enum class Status { kRefused = 1, kWrongUsage = 2 };
    CommandError(Status status, const std::string& sentence)
        : std::runtime_error(sentence), status_(status) {}
    int ExitStatus() const { return static_cast<int>(status_); }

  private:
    Status status_;
};

}  // namespace morpho
