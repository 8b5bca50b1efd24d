#pragma once

#include <map>
#include <string>
#include <vector>

#include "desktop/request.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace morpho {

// The subcommand `recolor`: with --theme it recolours a theme, without it pictures.
class RecolorOptions {
  public:
    // Adds the subcommand; `app` must outlive the object.
    explicit RecolorOptions(CLI::App& app);
    RecolorOptions(const RecolorOptions&) = delete;
    RecolorOptions& operator=(const RecolorOptions&) = delete;

    // Whether the command line that was parsed names the subcommand.
    bool IsChosen() const;
    // What that command line asks for. Throws CommandError when its options do not go together.
    Request Asked() const;

  private:
    void AddSteps();
    void AddNumber(const std::string& name, Step::Kind kind, int least, int most,
                   const std::string& help);
    void AddPlain(const std::string& name, Step::Kind kind, const std::string& help);
    void AddOutcomes();
    void AddNewThemeOptions(CLI::Option& newTheme);
    void AddThemeOptions();
    void AddPictureOptions();

    // The steps as they stand on the command line.
    std::vector<Step> StepsInOrder() const;
    PictureChange Change() const;
    RecolorRequest AskedOfTheme() const;
    PicturesRequest AskedOfPictures() const;
    // Throws CommandError when one of these was given; `instead` says for what it is.
    void Refuse(const std::vector<const CLI::Option*>& options, const std::string& instead) const;

    CLI::App& command_;
    std::vector<std::filesystem::path> paths_;
    RecolorRequest theme_;
    PicturesRequest pictures_;
    std::map<const CLI::Option*, Step::Kind> steps_;
    std::vector<const CLI::Option*> ofThemes_;    // options for a theme alone
    std::vector<const CLI::Option*> ofPictures_;  // options for pictures alone
    std::vector<std::string> select_;
    std::map<Step::Kind, std::vector<int>> numbers_;
    int outcomes_ = 0;  // how many of a theme's were given
};

}  // namespace morpho
