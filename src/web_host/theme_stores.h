#pragma once

#include <string>

namespace morpho {

// Folders of the user's data that belong to a web, as Windows paths; they are created when needed.
// All but `saves` are empty where nothing is to be saved.
struct ThemeStores {
    std::string ofUser = {};  // the user's own themes, the same for all webs
    std::string forWeb = {};  // the themes installed for all users, as far as this web is concerned
    std::string saves = {};   // the journal of a save in this web
};

}  // namespace morpho
