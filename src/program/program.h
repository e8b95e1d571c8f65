// All state of the running program. `main` makes one and hands it on; there is no other.
#pragma once

#include "base/ports/prompts.h"
#include "brewing/beer_colour.h"
#include "calculators/hop_memory.h"
#include "databases/ingredient_list.h"
#include "documents/opening.h"
#include "documents/session_figures.h"
#include "mash/strike_calculator.h"
#include "page/html_theme.h"
#include "program/documents.h"
#include "program/open_tools.h"
#include "program/recent.h"
#include "records/ingredients/database_file.h"
#include "settings/settings.h"
#include "settings/system_files.h"

namespace wortlex {

/// What the calculators start from; larger for a brewery than for a kitchen.
struct CalculatorDefaults {
    float carbonation_gallons = 0;
    float mash_grain = 0;   ///< pounds
    float mash_gallons = 0; ///< of the mash tools, as the others
    float dough_in_quarts = 0;

    bool operator==(const CalculatorDefaults&) const = default;
};

/// What the pick lists of documents showed last.
struct PickChoices {
    ListChoice styles, malts, hops, yeasts, waters, extras;
};

struct Program {
    std::string data_folder; ///< ends in a slash
    FolderSet folders;
    SystemFiles system;          ///< the images, as on the disk
    Settings settings;           ///< the working values
    std::uint8_t art_scheme = 0; ///< as it was at the start: a new choice waits for the next one
    PrintSelection recipe_print;
    PrintSelection session_print;
    ReminderFlags reminders;
    HtmlTheme html_theme;   ///< of exported pages
    WaterNeeds water_usage; ///< the brewer's usual figures

    BrewDocument document; ///< the one live recipe, also under a session
    RecipeFigures figures;
    SessionDocument session;
    WaterBalance water;        ///< of the session
    float water_to_grain = 0;  ///< of the simple mash, quarts per pound; 0 for a loaded document
    DocumentFile recipe_file;  ///< where the live document comes from,
    DocumentFile session_file; ///< by the window that works on it
    RecentDocuments recent_documents;

    Database<WaterRecord> water_database; ///< the one that stays in memory
    ColorTable color_table;
    CalculatorDefaults calculator_defaults;
    HopMemory hop_memory;
    std::optional<StrikeCalculator> strike_calculator; ///< none before its window first opens
    PickChoices picks;

    OpenTools tools;
    MainPosition main_position; ///< as it was at the start
    ToolPositions tool_positions;
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
