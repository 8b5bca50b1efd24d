#include "program/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <sstream>

#include "editing/adjustment_sliders.h"
#include "text/ignoring_case.h"
#include "text/parsed_number.h"
#include "theme_editor/catalogue.h"

namespace morpho {

namespace {

constexpr const char* kSteps =
    "Steps run in the order given, on the same window that a person uses. A theme opens with all "
    "its elements\n"
    "selected, so a batch that means some of them begins with --select none. Elements that share a "
    "picture are\n"
    "selected together.";

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

CLI::Validator NumberFrom(int least, int most) {
    const std::string range = std::to_string(least) + " to " + std::to_string(most);
    const auto refusal = [=](const std::string& text) {
        const auto number = ParsedNumber<int>(text);
        if (number && *number >= least && *number <= most) return std::string();
        return "\"" + text + "\" is not a whole number from " + range;
    };
    return {refusal, range};
}

// An empty name is most often a variable of a script that was never set; an option in its place, a
// value that was forgotten.
CLI::Validator NotEmpty() {
    return {[](const std::string& text) {
                const bool isOption = text.starts_with("--") || text == "-h";
                return text.empty() || isOption ? "nothing is named" : "";
            },
            ""};
}

void AddWeb(CLI::App& command, std::filesystem::path& web) {
    command.add_option("WEB", web, "Folder of the web")
        ->type_name("")
        ->check(NotEmpty())
        ->required();
}

// The options that are steps, with what each may be given.
class StepOptions {
  public:
    explicit StepOptions(CLI::App& command) : command_(command) {
        const auto& factor = AdjustmentSliders::kFactorRange;
        const auto& hue = AdjustmentSliders::kHueRange;
        options_[command
                     .add_option("--select", select_,
                                 "Elements to add to the selection, separated by commas: all, "
                                 "active, normal or element keys; none clears it")
                     ->type_name("WHAT")
                     ->group("Steps")] = Step::Kind::kSelect;
        Number("--brightness", Step::Kind::kBrightness, factor.minimum, factor.maximum,
               "Brightness in percent; 100 is neutral");
        Number("--saturation", Step::Kind::kSaturation, factor.minimum, factor.maximum,
               "Saturation in percent; 100 is neutral");
        Number("--hue", Step::Kind::kHue, hue.minimum, hue.maximum,
               "Hue shift in degrees; 0 is neutral, 120 carries red towards green");
        Number("--quality", Step::Kind::kQuality, 1, 100,
               "JPEG quality from here on; 75 if never given");
        Plain("--apply", Step::Kind::kApply, "Apply the sliders to the selected elements");
        Plain("--undo", Step::Kind::kUndo, "Undo the last step");
        Plain("--redo", Step::Kind::kRedo, "Redo the step undone last");
        Plain("--reset", Step::Kind::kReset, "Restore all original pictures");
    }

    // The steps as they stand on the command line.
    std::vector<Step> InOrder() const {
        std::vector<Step> steps;
        std::map<const CLI::Option*, std::size_t> taken;
        for (const CLI::Option* option : command_.parse_order()) {
            const auto found = options_.find(option);
            if (found == options_.end()) continue;
            const std::size_t occurrence = taken[option]++;
            steps.push_back(StepOf(found->second, *option, occurrence));
        }
        return steps;
    }

  private:
    void Number(const std::string& name, Step::Kind kind, int least, int most,
                const std::string& help) {
        CLI::Option* option = command_.add_option(name, numbers_[kind], help)
                                  ->type_name("N")
                                  ->check(NumberFrom(least, most))
                                  ->group("Steps");
        options_[option] = kind;
    }

    void Plain(const std::string& name, Step::Kind kind, const std::string& help) {
        options_[command_.add_flag(name, help)->disable_flag_override()->group("Steps")] = kind;
    }

    static Step StepOf(Step::Kind kind, const CLI::Option& option, std::size_t occurrence) {
        if (kind == Step::Kind::kSelect) return SelectStep(option.results().at(occurrence));
        Step step{kind};
        if (option.get_items_expected_max() > 0)
            step.number = ParsedNumber<int>(option.results().at(occurrence)).value();
        return step;
    }

    CLI::App& command_;
    std::map<const CLI::Option*, Step::Kind> options_;
    std::vector<std::string> select_;
    std::map<Step::Kind, std::vector<int>> numbers_;
};

// How the batch ends: one of three.
void AddOutcomes(CLI::App& command, Outcome& outcome) {
    CLI::Option_group* outcomes =
        command.add_option_group("Outcome", "What becomes of the recoloured theme");
    outcomes
        ->add_option("--export", outcome.exportFolder,
                     "New or empty folder that gets the recoloured theme")
        ->type_name("DIR")
        ->check(NotEmpty());
    outcomes
        ->add_flag_callback(
            "--save", [&] { outcome.kind = Outcome::Kind::kSave; },
            "Save it over the theme that it was, also where the web uses it")
        ->disable_flag_override();
    const auto saveAs = [&](const std::string& name) {
        outcome.kind = Outcome::Kind::kSaveAs;
        outcome.name = name;
    };
    CLI::Option* newTheme =
        outcomes
            ->add_option_function<std::string>(
                "--save-as", saveAs,
                "Save it as a new theme of this name; auto: a free name like the theme's own")
            ->type_name("NAME")
            ->check(NotEmpty());
    outcomes->require_option(1);
    command.add_option("--title", outcome.title, "Title of the new theme; a free one if not given")
        ->type_name("TITLE")
        ->check(NotEmpty())
        ->needs(newTheme);
    CLI::Option* const applied =
        command
            .add_flag("--apply-to-web", outcome.applyToWeb, "Give the new theme to the web's pages")
            ->disable_flag_override()
            ->needs(newTheme);
    command
        .add_flag("--apply-to-pages", outcome.applyToPages,
                  "Also to the pages that name the recoloured theme themselves")
        ->disable_flag_override()
        ->needs(applied);
}

// What the program takes without a subcommand.
void AddWebWindow(CLI::App& app, WebRequest& web) {
    app.add_option("WEB", web.web, "Folder of the web to open; the last one if not given")
        ->type_name("")
        ->check(NotEmpty());
    app.add_option("--host-version", web.hostVersion, "Release of FrontPage to play: 4.0, 5.0, 6.0")
        ->type_name("RELEASE")
        ->check(NotEmpty());
}

// Each of these adds a subcommand that fills in a request.

CLI::App* AddTheme(CLI::App& app, ThemeRequest& theme) {
    CLI::App* command =
        app.add_subcommand("theme", "Open a web's theme in the Theme Morpho window");
    AddWeb(*command, theme.web);
    command->add_option("--theme", theme.theme, "Theme to open; the web's first if not given")
        ->type_name("NAME")
        ->check(NotEmpty());
    return command;
}

CLI::App* AddList(CLI::App& app, ListRequest& list) {
    CLI::App* command = app.add_subcommand("list", "List a web's themes and their elements");
    AddWeb(*command, list.web);
    command->add_option("--theme", list.theme, "List this theme's elements: key, file, image group")
        ->type_name("NAME")
        ->check(NotEmpty());
    command->add_flag("--json", list.json, "Print all as JSON")->disable_flag_override();
    return command;
}

CLI::App* AddRecolor(CLI::App& app, RecolorRequest& recolor) {
    CLI::App* command = app.add_subcommand("recolor", "Recolour a theme in a batch");
    command->footer(kSteps);
    AddWeb(*command, recolor.web);
    command->add_option("--theme", recolor.theme, "Theme to recolour")
        ->type_name("NAME")
        ->check(NotEmpty())
        ->required();
    command
        ->add_option("--picture", recolor.picture,
                     "PNG file that gets a picture of the window after the steps")
        ->type_name("FILE")
        ->check(NotEmpty());
    command->add_flag("--json", recolor.json, "Print the elements and the history as JSON")
        ->disable_flag_override();
    command->add_flag("--dry-run", recolor.dryRun, "Tell what would be written, and write nothing")
        ->disable_flag_override();
    AddOutcomes(*command, recolor.outcome);
    return command;
}

CLI::App* AddApply(CLI::App& app, ApplyRequest& apply) {
    CLI::App* command = app.add_subcommand("apply", "Give a web's pages another theme");
    AddWeb(*command, apply.web);
    command->add_option("--theme", apply.theme, "A theme of the web, or one of the user's own")
        ->type_name("NAME")
        ->check(NotEmpty())
        ->required();
    command
        ->add_option(
            "--in-place-of", apply.inPlaceOf,
            "Give it to the pages that have this theme, also those that name it themselves")
        ->type_name("OLD")
        ->check(NotEmpty());
    command
        ->add_flag("--overwrite", apply.overwrite,
                   "Replace the web's own theme of that name by the user's")
        ->disable_flag_override();
    return command;
}

// The library gives an option the next argument where its value is empty ("--title= --save").
void RefuseEmptyValues(int argc, const char* const* argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument.starts_with("--") && argument.ends_with("=") &&
            argument.find('=') == argument.size() - 1)
            throw CommandError(CommandError::Status::kWrongUsage,
                               std::string(argument) + " has no value. See morpho --help.");
    }
}

[[noreturn]] void RefuseCommandLine(const std::string& reason) {
    throw CommandError(CommandError::Status::kWrongUsage, reason + ". See morpho --help.");
}

// A mistyped command looks like the name of a web.
void RequireFolder(const WebRequest& request) {
    std::error_code ignored;
    const auto& web = request.web;
    if (web.empty() || web.has_parent_path() || std::filesystem::exists(web, ignored)) return;
    RefuseCommandLine("\"" + web.string() + "\" is neither a command nor a folder");
}

}  // namespace

Request ParseCommandLine(int argc, const char* const* argv, const std::string& version) {
    CLI::App app("Recolours the graphics of FrontPage webs.", "morpho");
    app.set_version_flag("--version", "morpho " + version);
    app.require_subcommand(0, 1);
    WebRequest web;
    AddWebWindow(app, web);
    ThemeRequest theme;
    ListRequest list;
    RecolorRequest recolor;
    ApplyRequest apply;
    const CLI::App* const themeCommand = AddTheme(app, theme);
    const CLI::App* const listCommand = AddList(app, list);
    CLI::App* const recolorCommand = AddRecolor(app, recolor);
    const StepOptions steps(*recolorCommand);
    const CLI::App* const applyCommand = AddApply(app, apply);
    RefuseEmptyValues(argc, argv);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForVersion& call) {
        return TextRequest{std::string(call.what()) + "\n"};
    } catch (const CLI::CallForHelp&) {
        return TextRequest{app.help()};
    } catch (const CLI::ParseError& error) {
        if (app.get_subcommands().empty()) RequireFolder(web);
        RefuseCommandLine(error.what());
    }
    if (app.get_subcommands().empty()) {
        RequireFolder(web);
        return web;
    }
    if (*themeCommand) return theme;
    if (*listCommand) return list;
    if (*applyCommand) return apply;
    recolor.steps = steps.InOrder();
    return recolor;
}

}  // namespace morpho
