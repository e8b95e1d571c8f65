// All state of the running program. `main` makes one and hands it on; there is no other.
#pragma once

#include "base/ports/prompts.h"
#include "documents/opening.h"
#include "documents/session_figures.h"
#include "frame/settings/settings.h"
#include "frame/settings/system_files.h"

namespace wortlex {

struct Program {
    std::string data_folder; ///< ends in a slash
    SystemFiles system;      ///< the images, as on the disk
    Settings settings;       ///< the working values
    WaterNeeds water_usage;  ///< the brewer's usual figures

    BrewDocument document; ///< the one live recipe, also under a session
    RecipeFigures figures;
    SessionDocument session;
    WaterBalance water; ///< of the session
};

/// Reads the settings and the usual water figures and makes an empty document. Without a whole settings file
/// it tells so and answers false: the program then ends.
bool start_core(Program& program, const std::string& data_folder, Prompts& prompts);

/// The working directory with a slash: where all data files are.
std::string working_folder();

/// Percent or gallons per hour, by the settings, where there is no session to ask.
inline float evaporation_rate(const Program& program) {
    return program.water_usage.evaporation_rate;
}

/// The live recipe, or the live session, ready to be worked on.
OpenDocument open_recipe(Program& program);
OpenDocument open_session(Program& program);

} // namespace wortlex
