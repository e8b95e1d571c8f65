// All state of the running program. `main` makes one and hands it on; there is no other.
#pragma once

#include "base/ports/prompts.h"
#include "brewing/beer_colour.h"
#include "calculators/calculator_states.h"
#include "calculators/hop_memory.h"
#include "databases/ingredient_list.h"
#include "documents/live_document.h"
#include "documents/opening.h"
#include "documents/session_figures.h"
#include "forms/places.h"
#include "mash/mash_chart_form.h"
#include "mash/strike_calculator.h"
#include "page/html_theme.h"
#include "program/documents.h"
#include "program/open_tools.h"
#include "program/recent.h"
#include "records/ingredients/database_file.h"
#include "reports/label_form.h"
#include "settings/settings.h"
#include "settings/system_files.h"
#include "water/water_needs_calculator.h"

namespace wortlex {

/// What the pick lists of documents showed last.
struct PickChoices {
    ListChoice styles, malts, hops, yeasts, waters, extras;
    bool stays_open = false; ///< for more than one malt, hop or extra
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

    LiveDocument document; ///< the one there is
    LabelChoice labels;    ///< how competition labels were printed last
    RecentDocuments recent_documents;

    Database<WaterRecord> water_database; ///< the one that stays in memory
    ColorTable color_table;
    HopMemory hop_memory;
    CalculatorStates calculators;
    MashChartChoice mash_charts;
    std::optional<StrikeCalculator> strike_calculator; ///< none before its window first opens
    WaterNeedsTool water_needs;
    PickChoices picks;

    OpenTools tools;
    bool told_of_unkept_work = false; ///< that the copy of unsaved work cannot be written
    MainPosition main_position;       ///< as it was at the start
    ToolPositions tool_positions;
    NoticeBoard notices; ///< whoever changes the document or the settings tells it here
};

/// Reads the settings and the usual water figures and makes an empty document. Without a whole settings file
/// it tells so and answers false: the program then ends.
bool start_core(Program& program, const std::string& data_folder, Prompts& prompts);

/// The working directory with a slash: where all data files are.
std::string working_folder();

/// Percent or gallons per hour, by the settings: the session's own, or for a recipe the usual one.
float evaporation_rate(const Program& program);

/// What every window is made with.
inline Places places(Program& program) {
    return {program.tool_positions, program.settings, program.notices};
}

/// The live document ready to be worked on.
OpenDocument live_document(Program& program);

/// What is wanted of the live document's report.
PrintSelection& print_selection(Program& program);

} // namespace wortlex
