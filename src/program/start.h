// What is read, and in which order, before the main window opens.
#pragma once

#include "program/program.h"

namespace wortlex {

/// Makes `program` ready in a data folder, which ends in a slash. Without a whole settings file it tells so
/// and answers false: the program then ends. Anything else that is missing has a stand-in.
bool start(Program& program, const std::string& data_folder, Prompts& prompts);

} // namespace wortlex
