// Where the desktop has the programs of a user keep their files.
#pragma once

#include <string>

namespace wortlex {

/// For data, and for what a program notes about itself. They end in a slash; empty where the user has no
/// home.
std::string user_data_folder();
std::string user_state_folder();

} // namespace wortlex
