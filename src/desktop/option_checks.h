#pragma once

#include <CLI/CLI.hpp>
#include <filesystem>
#include <string>

#include "desktop/path_text.h"
#include "text/parsed_number.h"

namespace morpho {

// Options of a kind, and what their values must be.

inline CLI::Validator NumberFrom(int least, int most) {
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
inline CLI::Validator NotEmpty() {
    return {[](const std::string& text) {
                const bool isOption = text.starts_with("--") || text == "-h";
                return text.empty() || isOption ? "nothing is named" : "";
            },
            ""};
}

// Adds an option whose value is a path.
inline CLI::Option* AddPath(CLI::App& app, const std::string& name, std::filesystem::path& path,
                            const std::string& help) {
    return app.add_option_function<std::string>(
        name, [&path](const std::string& text) { path = PathOf(text); }, help);
}

}  // namespace morpho
