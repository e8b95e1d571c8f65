// Which brewery folder a program works in, and what is shipped to begin one with.
#pragma once

#include "base/ports/prompts.h"

#include <optional>
#include <string>

namespace wortlex {

/// What a start depends on. Folders end in a slash.
struct StartPlaces {
    std::string working;   ///< that the program was started in
    std::string programs;  ///< that the programs lie in
    std::string user_data; ///< of the user; empty where he has no home
};

/// Of this run.
StartPlaces start_places();

/// Where the shipped data lies: databases, samples and pictures in a brewery folder as this version has it,
/// which nothing is ever written to. Ends in a slash; empty where nothing is shipped.
std::string shipped_data(const std::string& programs);

/// The brewery folder to work in. A build, and whatever is started in a brewery, works in the working folder.
/// An installed program has one of its own: `brewery` beside its `bin` where there is such a folder, as in a
/// portable copy, else `wortlex` in the user's data. What is shipped is copied there once, and never over
/// what is there. Nothing if there can be none, which is told.
std::optional<std::string> open_brewery(const StartPlaces& places, Prompts& prompts);

} // namespace wortlex
