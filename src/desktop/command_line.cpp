#include "desktop/command_line.h"

#include <CLI/CLI.hpp>

#include "desktop/option_checks.h"
#include "desktop/path_text.h"
#include "desktop/recolor_options.h"

namespace morpho {

namespace {

// No page has as many; what is larger is a slip of the finger.
constexpr int kMaxPictureNumber = 1'000'000;

void AddWeb(CLI::App& command, std::filesystem::path& web) {
    AddPath(command, "WEB", web, "Folder of the web")->type_name("")->check(NotEmpty())->required();
}

// What the program takes without a subcommand.
void AddWebWindow(CLI::App& app, WebRequest& web) {
    AddPath(app, "WEB", web.web, "Folder of the web to open; the last one if not given")
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
    command->footer("Example:\n  morpho theme ~/web --theme blends");
    AddWeb(*command, theme.web);
    command->add_option("--theme", theme.theme, "Theme to open; the web's first if not given")
        ->type_name("NAME")
        ->check(NotEmpty());
    return command;
}

CLI::App* AddList(CLI::App& app, ListRequest& list) {
    CLI::App* command = app.add_subcommand("list", "List a web's themes and their elements");
    command->footer("Example:\n  morpho list ~/web --theme blends --json");
    AddWeb(*command, list.web);
    command->add_option("--theme", list.theme, "List this theme's elements: key, file, image group")
        ->type_name("NAME")
        ->check(NotEmpty());
    command->add_flag("--json", list.json, "Print all as JSON")->disable_flag_override();
    return command;
}

CLI::App* AddImage(CLI::App& app, ImageRequest& image) {
    CLI::App* command = app.add_subcommand("image", "Open a picture in the Image Morpho window");
    command->footer(
        "Examples:\n"
        "  morpho image logo.gif\n"
        "  morpho image ~/web --page index.htm --select 2");
    AddPath(*command, "PICTURE", image.path, "GIF or JPEG file, or folder of a web")
        ->type_name("")
        ->check(NotEmpty());
    CLI::Option* const page =
        command->add_option("--page", image.page, "Page of the web that is being edited")
            ->type_name("PAGE")
            ->check(NotEmpty());
    command
        ->add_option("--select", image.selected, "Picture of the page that is selected: 1, 2, ...")
        ->type_name("N")
        ->check(NumberFrom(1, kMaxPictureNumber))
        ->needs(page);
    return command;
}

CLI::App* AddApply(CLI::App& app, ApplyRequest& apply) {
    CLI::App* command = app.add_subcommand("apply", "Give a web's pages another theme");
    command->footer("Example:\n  morpho apply ~/web --theme blends2 --in-place-of blends");
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
    RefuseCommandLine("\"" + TextOf(web) + "\" is neither a command nor a folder");
}

}  // namespace

Request ParseCommandLine(int argc, const char* const* argv, const std::string& version) {
    CLI::App app("Recolours the graphics of FrontPage webs, and single pictures.", "morpho");
    // "/name" is a path, on every system.
    app.allow_windows_style_options(false);
    app.set_version_flag("--version", "morpho " + version);
    app.require_subcommand(0, 1);
    app.footer("Example:\n  morpho ~/web");
    WebRequest web;
    AddWebWindow(app, web);
    ThemeRequest theme;
    ListRequest list;
    ImageRequest image;
    ApplyRequest apply;
    const CLI::App* const themeCommand = AddTheme(app, theme);
    const CLI::App* const listCommand = AddList(app, list);
    const CLI::App* const imageCommand = AddImage(app, image);
    const RecolorOptions recolor(app);
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
    if (*imageCommand) return image;
    return recolor.Asked();
}

}  // namespace morpho
