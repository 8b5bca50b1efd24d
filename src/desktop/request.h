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

// What is done to a picture: values of the sliders, and the JPEG quality.
struct PictureChange {
    int brightness = 100;
    int saturation = 100;
    int hue = 0;
    std::optional<int> quality = {};
};

// Recolours single pictures. One of output, outputFolder and inPlace says where they go.
struct PicturesRequest {
    std::vector<std::filesystem::path> pictures;
    PictureChange change;
    std::filesystem::path output;        // for one picture
    std::filesystem::path outputFolder;  // where each keeps its name
    bool inPlace = false;
    bool force = false;  // an existing file is replaced
    bool json = false;
};

struct ImageRequest {
    std::filesystem::path path;  // a web or a picture; empty: the window opens without
    std::string page;            // of the web; empty: none is active
    int selected = 0;            // the picture of the page, counted from 1; 0: none
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

using Request = std::variant<TextRequest, WebRequest, ThemeRequest, ListRequest, RecolorRequest,
                             PicturesRequest, ImageRequest, ApplyRequest>;

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

inline CommandError Refusal(const std::string& sentence) {
    return {CommandError::Status::kRefused, sentence};
}

}  // namespace morpho
