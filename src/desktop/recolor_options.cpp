#include "desktop/recolor_options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <sstream>

#include "colorizer/recolorer.h"
#include "desktop/option_checks.h"
#include "editing/adjustment_sliders.h"
#include "text/ignoring_case.h"
#include "theme_editor/catalogue.h"

namespace morpho {

namespace {

constexpr const char* kOutcomeGroup = "Outcome";
constexpr const char* kFooter =
    "Without --theme, GIF and JPEG pictures are recoloured; with it, a theme of the web.\n"
    "A theme's steps run in the order given, on the same window that a person uses. A theme opens "
    "with all its\n"
    "elements selected, so a batch that means some of them begins with --select none. Elements "
    "that "
    "share a picture\n"
    "are selected together.\n"
    "\n"
    "Examples:\n"
    "  morpho recolor logo.gif --hue 120 --output logo-green.gif\n"
    "  morpho recolor *.jpg --saturation 40 --quality 85 --output-dir grey\n"
    "  morpho recolor ~/web --theme blends --hue 120 --apply --save-as auto --apply-to-web";

[[noreturn]] void RefuseUsage(const std::string& sentence) {
    throw CommandError(CommandError::Status::kWrongUsage, sentence + " See morpho --help.");
}

bool IsSelectionWord(const std::string& word) {
    static constexpr std::array<std::string_view, 4> kGroups{"all", "none", "active", "normal"};
    const auto isWord = [&](std::string_view known) { return EqualIgnoringAsciiCase(known, word); };
    return std::any_of(kGroups.begin(), kGroups.end(), isWord) ||
           std::any_of(kCatalogue.begin(), kCatalogue.end(),
                       [&](const CatalogueElement& element) { return isWord(element.key); });
}

Step SelectStep(const std::string& argument) {
    Step step{Step::Kind::kSelect};
    std::istringstream words(argument);
    for (std::string word; std::getline(words, word, ',');) {
        if (!IsSelectionWord(word)) {
            throw CommandError(CommandError::Status::kWrongUsage,
                               "--select: \"" + word +
                                   "\" is neither all, none, active, normal nor an element key.");
        }
        step.words.push_back(AsciiLowered(word));
    }
    if (step.words.empty()) {
        throw CommandError(CommandError::Status::kWrongUsage, "--select: nothing is named.");
    }
    return step;
}

Step StepOf(Step::Kind kind, const CLI::Option& option, std::size_t occurrence) {
    if (kind == Step::Kind::kSelect) return SelectStep(option.results().at(occurrence));
    Step step{kind};
    if (option.get_items_expected_max() > 0)
        step.number = ParsedNumber<int>(option.results().at(occurrence)).value();
    return step;
}

}  // namespace

RecolorOptions::RecolorOptions(CLI::App& app)
    : command_(*app.add_subcommand("recolor", "Recolour pictures, or a theme, in a batch")) {
    command_.footer(kFooter);
    command_
        .add_option_function<std::vector<std::string>>(
            "PICTURE",
            [this](const std::vector<std::string>& texts) {
                for (const std::string& text : texts)
                    paths_.push_back(PathOf(text));
            },
            "GIF and JPEG files; with --theme: folder of the web")
        ->type_name("")
        ->check(NotEmpty())
        ->required();
    command_.add_flag("--json", theme_.json, "Print what was done as JSON")
        ->disable_flag_override();
    AddPictureOptions();
    AddThemeOptions();
    AddOutcomes();
    AddSteps();
}

void RecolorOptions::AddPictureOptions() {
    const char* const group = "Pictures";
    ofPictures_ = {
        AddPath(command_, "--output", pictures_.output, "File that gets the recoloured picture")
            ->type_name("FILE")
            ->check(NotEmpty())
            ->group(group),
        AddPath(command_, "--output-dir", pictures_.outputFolder,
                "Folder that gets the recoloured pictures, under their names")
            ->type_name("DIR")
            ->check(NotEmpty())
            ->group(group),
        command_.add_flag("--in-place", pictures_.inPlace, "Replace the pictures themselves")
            ->disable_flag_override()
            ->group(group),
        command_.add_flag("--force", pictures_.force, "Replace files that exist")
            ->disable_flag_override()
            ->group(group)};
}

void RecolorOptions::AddThemeOptions() {
    const char* const group = "Theme";
    command_.add_option("--theme", theme_.theme, "Theme of the web to recolour")
        ->type_name("NAME")
        ->check(NotEmpty())
        ->group(group);
    ofThemes_ = {
        AddPath(command_, "--picture", theme_.picture,
                "PNG file that gets a picture of the window after the steps")
            ->type_name("FILE")
            ->check(NotEmpty())
            ->group(group),
        command_
            .add_flag("--dry-run", theme_.dryRun, "Tell what would be written, and write nothing")
            ->disable_flag_override()
            ->group(group)};
}

// How a theme's batch ends: one of three.
void RecolorOptions::AddOutcomes() {
    Outcome& outcome = theme_.outcome;
    const auto exportTo = [&](const std::string& folder) {
        outcome.kind = Outcome::Kind::kExport;
        outcome.exportFolder = PathOf(folder);
        ++outcomes_;
    };
    const auto save = [&] {
        outcome.kind = Outcome::Kind::kSave;
        ++outcomes_;
    };
    const auto saveAs = [&](const std::string& name) {
        outcome.kind = Outcome::Kind::kSaveAs;
        outcome.name = name;
        ++outcomes_;
    };
    CLI::Option* const exported =
        command_
            .add_option_function<std::string>("--export", exportTo,
                                              "New or empty folder that gets the recoloured theme")
            ->type_name("DIR")
            ->check(NotEmpty());
    CLI::Option* const saved =
        command_
            .add_flag_callback("--save", save,
                               "Save it over the theme that it was, also where the web uses it")
            ->disable_flag_override();
    CLI::Option* const newTheme =
        command_
            .add_option_function<std::string>(
                "--save-as", saveAs,
                "Save it as a new theme of this name; auto: a free name like the theme's own")
            ->type_name("NAME")
            ->check(NotEmpty());
    for (CLI::Option* option : {exported, saved, newTheme}) {
        option->group(kOutcomeGroup);
        ofThemes_.push_back(option);
    }
    AddNewThemeOptions(*newTheme);
}

void RecolorOptions::AddNewThemeOptions(CLI::Option& newTheme) {
    Outcome& outcome = theme_.outcome;
    CLI::Option* const title =
        command_
            .add_option("--title", outcome.title, "Title of the new theme; a free one if not given")
            ->type_name("TITLE")
            ->check(NotEmpty())
            ->needs(&newTheme);
    CLI::Option* const applied =
        command_
            .add_flag("--apply-to-web", outcome.applyToWeb, "Give the new theme to the web's pages")
            ->disable_flag_override()
            ->needs(&newTheme);
    CLI::Option* const toPages =
        command_
            .add_flag("--apply-to-pages", outcome.applyToPages,
                      "Also to the pages that name the recoloured theme themselves")
            ->disable_flag_override()
            ->needs(applied);
    for (CLI::Option* option : {title, applied, toPages}) {
        option->group(kOutcomeGroup);
        ofThemes_.push_back(option);
    }
}

void RecolorOptions::AddSteps() {
    const auto& factor = AdjustmentSliders::kFactorRange;
    const auto& hue = AdjustmentSliders::kHueRange;
    CLI::Option* const select =
        command_
            .add_option("--select", select_,
                        "Elements to add to the selection, separated by commas: all, active, "
                        "normal or element keys; none clears it")
            ->type_name("WHAT")
            ->group("Steps");
    steps_[select] = Step::Kind::kSelect;
    ofThemes_.push_back(select);
    AddNumber("--brightness", Step::Kind::kBrightness, factor.minimum, factor.maximum,
              "Brightness in percent; 100 is neutral");
    AddNumber("--saturation", Step::Kind::kSaturation, factor.minimum, factor.maximum,
              "Saturation in percent; 100 is neutral");
    AddNumber("--hue", Step::Kind::kHue, hue.minimum, hue.maximum,
              "Hue shift in degrees; 0 is neutral, 120 carries red towards green");
    AddNumber("--quality", Step::Kind::kQuality, colorizer::kLeastQuality, colorizer::kMostQuality,
              "JPEG quality from here on; 75 if never given");
    AddPlain("--apply", Step::Kind::kApply, "Apply the sliders to the selected elements");
    AddPlain("--undo", Step::Kind::kUndo, "Undo the last step");
    AddPlain("--redo", Step::Kind::kRedo, "Redo the step undone last");
    AddPlain("--reset", Step::Kind::kReset, "Restore all original pictures");
}

void RecolorOptions::AddNumber(const std::string& name, Step::Kind kind, int least, int most,
                               const std::string& help) {
    CLI::Option* option = command_.add_option(name, numbers_[kind], help)
                              ->type_name("N")
                              ->check(NumberFrom(least, most))
                              ->allow_extra_args(false)
                              ->group("Steps");
    steps_[option] = kind;
}

void RecolorOptions::AddPlain(const std::string& name, Step::Kind kind, const std::string& help) {
    CLI::Option* option = command_.add_flag(name, help)->disable_flag_override()->group("Steps");
    steps_[option] = kind;
    ofThemes_.push_back(option);
}

bool RecolorOptions::IsChosen() const {
    return command_.parsed();
}

std::vector<Step> RecolorOptions::StepsInOrder() const {
    std::vector<Step> steps;
    std::map<const CLI::Option*, std::size_t> taken;
    for (const CLI::Option* option : command_.parse_order()) {
        const auto found = steps_.find(option);
        if (found == steps_.end()) continue;
        const std::size_t occurrence = taken[option]++;
        steps.push_back(StepOf(found->second, *option, occurrence));
    }
    return steps;
}

Request RecolorOptions::Asked() const {
    if (theme_.theme.empty()) return AskedOfPictures();
    return AskedOfTheme();
}

void RecolorOptions::Refuse(const std::vector<const CLI::Option*>& options,
                            const std::string& instead) const {
    for (const CLI::Option* option : options) {
        if (option->count() > 0) RefuseUsage(option->get_name() + " is for " + instead + ".");
    }
}

RecolorRequest RecolorOptions::AskedOfTheme() const {
    Refuse(ofPictures_, "pictures, not for a theme");
    if (paths_.size() != 1) RefuseUsage("--theme: one web is recoloured at a time.");
    if (outcomes_ != 1) RefuseUsage("One of --export, --save and --save-as is needed.");
    RecolorRequest asked = theme_;
    asked.web = paths_.front();
    asked.steps = StepsInOrder();
    return asked;
}

// The last value of each counts, as on most command lines.
PictureChange RecolorOptions::Change() const {
    PictureChange change;
    for (const Step& step : StepsInOrder()) {
        if (step.kind == Step::Kind::kBrightness) change.brightness = step.number;
        if (step.kind == Step::Kind::kSaturation) change.saturation = step.number;
        if (step.kind == Step::Kind::kHue) change.hue = step.number;
        if (step.kind == Step::Kind::kQuality) change.quality = step.number;
    }
    return change;
}

PicturesRequest RecolorOptions::AskedOfPictures() const {
    std::error_code ignored;
    for (const std::filesystem::path& path : paths_) {
        if (std::filesystem::is_directory(path, ignored))
            RefuseUsage(TextOf(path) + " is a folder: --theme says which of its themes.");
    }
    Refuse(ofThemes_, "a theme: --theme is missing");
    PicturesRequest asked = pictures_;
    asked.pictures = paths_;
    asked.change = Change();
    asked.json = theme_.json;
    const int outcomes = (asked.inPlace ? 1 : 0) + (asked.output.empty() ? 0 : 1) +
                         (asked.outputFolder.empty() ? 0 : 1);
    if (outcomes != 1) RefuseUsage("One of --output, --output-dir and --in-place is needed.");
    if (!asked.output.empty() && asked.pictures.size() > 1)
        RefuseUsage("--output is for one picture: --output-dir takes more.");
    return asked;
}

}  // namespace morpho
