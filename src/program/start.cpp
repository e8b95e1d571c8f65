#include "program/start.h"

#include "base/files.h"
#include "program/inventory.h"
#include "program/shipped_data.h"

namespace wortlex {
namespace {

constexpr float brewery_beer = 527; // gallons that the carbonation calculator begins with there

// Before the settings: where files are, how HTML pages look, what calculators begin with, and where windows
// were.
void read_places(Program& program, const std::string& data_folder) {
    program.folders = LoadFolders(data_folder);
    program.html_theme = LoadDefaultTheme(data_folder);
    LoadDilution(data_folder, program.calculators.dilution);
    LoadBoilOff(data_folder, program.calculators.boil_off);
    program.main_position = LoadMainPosition(data_folder);
    program.tool_positions = LoadToolPositions(data_folder);
}

// Runs that were killed in a save left their halves in the folders that this program saves to.
void clear_broken_saves(const Program& program) {
    remove_broken_saves(program.data_folder);
    for (std::size_t kind = 0; kind < folder_kinds; ++kind)
        remove_broken_saves(folder_path(program.folders, static_cast<FolderKind>(kind)));
}

void read_print_options(Program& program) {
    const float scale = program.settings.printer_scale;
    program.recipe_print = LoadPrintSelection(program.data_folder, DocumentKind::recipe, scale);
    program.session_print = LoadPrintSelection(program.data_folder, DocumentKind::session, scale);
    program.reminders = LoadReminders(program.data_folder);
}

void read_color_table(Program& program, Prompts& prompts) {
    if (LoadColorTable(find_data_file(program.data_folder, color_table_file), program.color_table)) return;
    prompts.tell(
        {.text = "Could not read kv_lovrgb.ldt file!", .caption = "Wortlex Error", .icon = Icon::error});
    program.color_table = built_in_color_table();
}

} // namespace

bool start(Program& program, const std::string& data_folder, Prompts& prompts) {
    read_places(program, data_folder);
    if (!start_core(program, data_folder, prompts)) return false;
    finish_booking(data_folder, prompts);
    finish_offer(data_folder);
    clear_broken_saves(program);
    read_print_options(program);
    program.art_scheme = program.system.settings.art_scheme;
    LoadWater(data_folder, program.water_database, prompts);
    if (is_pro(program.settings)) program.calculators.carbonation.beer = of_gallons(brewery_beer);
    read_color_table(program, prompts);
    program.recent_documents = LoadRecent(data_folder);
    return true;
}

} // namespace wortlex
