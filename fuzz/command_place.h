#pragma once

#include "support/temporary_folder.h"

// The current folder of the program, with a small web and two pictures, beside a folder that is
// none of its business, and the home of its user.
class CommandPlace {
  public:
    // Sets the variables that name the user's folders.
    CommandPlace();

    // Makes everything what it was, if the last command has changed something.
    void MakeFresh();
    // The current folder and the one beside it, without the user's home.
    const morpho::Tree& Before() const { return before_; }
    morpho::Tree Now() const;

    // Where commands run.
    std::filesystem::path Here() const { return folder_.At("here"); }

  private:
    morpho::TemporaryFolder folder_;
    morpho::Tree before_;
};
