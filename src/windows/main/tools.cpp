#include "windows/main/tools.h"

#include "calculators/hop_degradation.h"
#include "desktop/system_ports.h"
#include "handbook/handbook.h"
#include "program/program.h"
#include "windows/calculators/brewers_tools.h"
#include "windows/calculators/color_utility_window.h"
#include "windows/calculators/date_calculator_window.h"
#include "windows/calculators/hop_degradation_window.h"
#include "windows/calculators/ibu_calculator_window.h"
#include "windows/calculators/time_sheet_window.h"
#include "windows/databases/ingredient_windows.h"
#include "windows/documents/recipe_window.h"
#include "windows/documents/session_window.h"
#include "windows/main/about_window.h"
#include "windows/main/log_window.h"
#include "windows/main/settings_windows.h"
#include "windows/mash/mash_designer_window.h"
#include "windows/mash/strike_calculator_window.h"
#include "windows/shelf/shelf_window.h"
#include "windows/water/water_calculator_window.h"
#include "windows/water/water_needs_window.h"

#include <algorithm>
#include <cassert>

namespace wortlex {
namespace {

template <class Window>
ToolWindow* made(const WindowPorts& ports, const WindowInfo& info, QWidget* origin) {
    return new Window(ports, info, origin);
}

bool begin_recipe(const WindowPorts& ports, QWidget*) {
    if (!may_begin_document(ports.program.tools, DocumentKind::recipe, ports.prompts)) return false;
    new_recipe(ports.program);
    return true;
}

bool begin_session(const WindowPorts& ports, QWidget*) {
    if (!may_begin_document(ports.program.tools, DocumentKind::session, ports.prompts)) return false;
    const SystemClock clock;
    new_session(ports.program, clock.today());
    return true;
}

// While the shelf stands open a second start may open a document.
bool choose_from_shelf(const WindowPorts& ports, QWidget* main) {
    const auto may_open = [&ports] {
        return may_begin_document(ports.program.tools, DocumentKind::recipe, ports.prompts);
    };
    if (!may_open()) return false;
    const auto path = choose_recipe(ports, Opener::main, main);
    return path && may_open() && open_document(ports.program, *path, DocumentKind::recipe, ports.prompts);
}

bool choose_session(const WindowPorts& ports, QWidget*) {
    return may_begin_document(ports.program.tools, DocumentKind::session, ports.prompts) &&
           choose_and_open(ports.program, DocumentKind::session, ports.files, ports.prompts);
}

void degrade_hops(const WindowPorts& ports, QWidget* main) {
    const auto degrade = [&ports](QWidget* list, const HopRecord& hop) {
        auto work = picked_hop(hop, ports.program.hop_memory, ports.program.settings);
        degrade_hop(ports, list, work);
    };
    pick_hops_for(degrade, ports, main);
}

void calculate_ibu(const WindowPorts& ports, QWidget* main) {
    const auto calculate = [&ports](QWidget* list, const HopRecord& hop) {
        run_ibu_calculator(ports, list, picked_hop(hop, ports.program.hop_memory, ports.program.settings));
    };
    pick_hops_for(calculate, ports, main);
}

void edit_settings(const WindowPorts& ports, QWidget* main) {
    if (!may_edit_settings(ports.program.tools, ports.prompts)) return;
    const SystemClock clock;
    const auto edit_colours = [&](QWidget* over) {
        run_color_utility(ports.program, ports.program.system.settings,
                          {ports.files, ports.prompts, ports.pictures, clock}, over);
    };
    edit_system_settings({ports.program, ports.files, ports.prompts, edit_colours}, main);
}

void open_log(const WindowPorts& ports, QWidget* main) {
    show_log(ports.clipboard, places(ports.program), main);
}

void about(const WindowPorts& ports, QWidget* main) {
    show_about(ports.program, main);
}

void leave_program(const WindowPorts&, QWidget* main) {
    main->close();
}

constexpr WindowInfo recipe_window = {
    "RECIPEDIALOG", {"Wortlex Recipe Formulation"}, from_main(100), "recipe"};
constexpr WindowInfo session_window = {
    "BATCH1DIALOG", {"Wortlex - Brewing Session"}, from_main(101), "session"};

// clang-format off
constexpr std::array all_tools = {
    Tool{.command = command::new_recipe,
         .menus = {{{Menu::create, "&Recipe"}}},
         .button = {"rb01", {86, 76}, "New Recipe", "New Recipe"},
         .key = QKeySequence::New,
         .window = recipe_window, .make = made<RecipeWindow>, .prepare = begin_recipe},
    Tool{.command = command::open_recipe,
         .menus = {{{Menu::open, "&Recipe"}}},
         .button = {"rb02", {186, 76}, "Open Recipe", "Open Recipe"},
         .key = QKeySequence::Open,
         .window = recipe_window, .make = made<RecipeWindow>, .prepare = choose_from_shelf},
    Tool{.command = command::new_session,
         .menus = {{{Menu::create, "&Brewing Session"}}},
         .button = {"rb03", {386, 76}, "New Session", "New Brewing Session"},
         .window = session_window, .make = made<SessionWindow>, .prepare = begin_session},
    Tool{.command = command::open_session,
         .menus = {{{Menu::open, "&Brewing Session"}}},
         .button = {"rb04", {486, 76}, "Open Session", "Open Brewing Session"},
         .window = session_window, .make = made<SessionWindow>, .prepare = choose_session},
    Tool{.command = command::open_recent, .menus = {{{Menu::file, "Open &Recent"}}}},
    Tool{.command = command::exit,
         .menus = {{{Menu::file, "E&xit"}}},
         .key = QKeySequence::Quit,
         .run = leave_program},

    Tool{.command = command::alcohol,
         .menus = {{{Menu::calculators, "% &Alcohol"},
                    {Menu::hydrometer, "% &Alcohol, Attenuation and Residual Extract"}}},
         .button = {"cb10", {406, 260}, "% Alcohol", "% Alcohol"},
         .window = {"ALCOHOLDIALOG", {"% Alcohol Calculator"}, from_main(0), "alcohol"},
         .make = make_alcohol},
    Tool{.command = command::boil_off,
         .menus = {{{Menu::calculators, "&Boil Off Calculator"}}},
         .button = {"cb12", {486, 180}, "Boil Off", "Boil Off Calculator"},
         .window = {"BOILDIALOG", {"Boil Off Calculator"}, from_main(6), "boil_off"},
         .make = make_boil_off},
    Tool{.command = command::carbonation,
         .menus = {{{Menu::calculators, "&Carbonation Calculator"}}},
         .button = {"cb11", {246, 260}, "Carbonation", "Carbonation Calculator"},
         .window = {"NATURALCARBCALCULATE", {"Carbonation Calculator"}, from_main(10), "carbonation"},
         .make = make_carbonation},
    Tool{.command = command::dilution,
         .menus = {{{Menu::calculators, "&Dilution Calculator"}}},
         .button = {"cb13", {486, 260}, "Dilution", "Dilution Calculator"},
         .window = {"DILUTIONDIALOG", {"Dilution Calculator"}, from_main(7), "dilution"},
         .make = make_dilution},
    Tool{.command = command::hop_ibu,
         .menus = {{{Menu::calculators, "Hop &IBU's"}}},
         .button = {"cb04", {246, 180}, "Hop IBU's", "Hop IBU's"},
         .run = calculate_ibu},
    Tool{.command = command::hop_time_degradation,
         .menus = {{{Menu::calculators, "Hop Time De&gradation"}}},
         .button = {"cb02", {166, 180}, "Hop Aging", "Hop Time Degradation"},
         .run = degrade_hops},
    Tool{.command = command::hydrometer,
         .menus = {{{Menu::calculators, "&Hydrometer Calculator"},
                    {Menu::hydrometer, "&Temperature Correction Calculator"}}},
         .button = {"cb09", {326, 260}, "Hydrometer", "Hydrometer Calculator"},
         .window = {"HYDROMETERDIALOG", {"Hydrometer Correction Calculator"}, from_main(11), "hydrometer"},
         .make = make_hydrometer},
    Tool{.command = command::mash_designer,
         .menus = {{{Menu::calculators, "&Mash Designer"}}},
         .button = {"cb08", {166, 260}, "Mash Design", "Mash Designer"},
         .window = {"STEPMASHDETAIL", {"Mash Designer"}, from_main(9), "mash_designer"},
         .make = made<MashDesignerWindow>},
    Tool{.command = command::strike_temperature,
         .menus = {{{Menu::calculators, "&Strike Temperature"}}},
         .button = {"cb07", {86, 260}, "Strike Temp.", "Strike Temperature"},
         .window = {"WATERCALCDIALOG2", {"Dough In Strike Water Temperature Calculator"}, from_main(8), "strike_temperature"},
         .make = made<StrikeCalculatorWindow>},
    Tool{.command = command::units,
         .menus = {{{Menu::calculators, "&Units"}}},
         .button = {"cb01", {86, 180}, "Units", "Units"},
         .window = {"METRICDIALOG", {"Measurements And Conversions"}, from_main(1), "units"},
         .make = make_units},
    Tool{.command = command::water_needed,
         .menus = {{{Menu::calculators, "&Water Needed"}}},
         .button = {"cb06", {406, 180}, "Water Needed", "Water Needed"},
         .window = {"WATERNEEDSDIALOG", {"Water Needed Calculator"}, from_main(5), "water_needed"},
         .make = made<WaterNeedsWindow>},
    Tool{.command = command::water_profile,
         .menus = {{{Menu::calculators, "Water &Profile"}}},
         .button = {"cb05", {326, 180}, "Water Prof.", "Water Profile"},
         .window = {"CHEMICALDIALOG", {"Water Profile Calculator"}, from_main(4), "water_calculator"},
         .make = made<WaterCalculatorWindow>},
    Tool{.command = command::temporary_calibration,
         .menus = {{{Menu::refractometer, "&Temporary Refractometer Calibration"}}},
         .window = {"REFRACTOMETERDIALOG0", {"Temporary Refractometer Calibration"}, from_main(16), "refractometer"},
         .make = make_calibration},
    Tool{.command = command::raw_wort_gravity,
         .menus = {{{Menu::refractometer, "&Raw Wort Gravity"}}},
         .window = {"REFRACTOMETERDIALOG1", {"Refractometer - Wort Gravity"}, from_main(17), "refractometer"},
         .make = make_raw_wort_gravity},
    Tool{.command = command::fermentation_gravity,
         .menus = {{{Menu::refractometer, "&Specific Gravity During Fermentation"}}},
         .window = {"REFRACTOMETERDIALOG2", {"Refractometer - Gravity During Fermentation"}, from_main(18), "refractometer"},
         .make = make_fermentation_gravity},
    Tool{.command = command::residual_extract,
         .menus = {{{Menu::refractometer, "% &Alcohol, OG and Residual Extract"}}},
         .window = {"REFRACTOMETERDIALOG3", {"Refractometer - % Alcohol, OG and Residual Extract"}, from_main(19), "refractometer"},
         .make = make_refractometer_alcohol},
    Tool{.command = command::refractometer_overview,
         .menus = {{{Menu::refractometer, "Refractometer &Overview"}}}, .help_page = "refractometer"},
    Tool{.command = command::date_calculator,
         .menus = {{{Menu::time, "Dat&e Calculator"}}},
         .window = {"DATECALC", {"Days Between Dates"}, no_places, "dates"},
         .make = made<DateCalculatorWindow>},
    Tool{.command = command::time_line,
         .menus = {{{Menu::time, "&Time Line"}}},
         .window = {"TIMESHEETDIALOG", {"Time Sheet"}, no_places, "time_line"},
         .make = made<TimeSheetWindow>},

    Tool{.command = command::style_database,
         .menus = {{{Menu::databases, "&Style"}}},
         .button = {"db01", {86, 360}, "Styles", "Style Database"},
         .run = keep_styles},
    Tool{.command = command::malt_database,
         .menus = {{{Menu::databases, "&Grain, Extract, Sugars"}}},
         .button = {"db02", {166, 360}, "Grain", "Grain, Extract, Sugars Database"},
         .run = keep_malts},
    Tool{.command = command::hop_database,
         .menus = {{{Menu::databases, "&Hops"}}},
         .button = {"db03", {246, 360}, "Hops", "Hops Database"},
         .run = keep_hops},
    Tool{.command = command::yeast_database,
         .menus = {{{Menu::databases, "&Yeast"}}},
         .button = {"db04", {326, 360}, "Yeast", "Yeast Database"},
         .run = keep_yeasts},
    Tool{.command = command::water_database,
         .menus = {{{Menu::databases, "&Water"}}},
         .button = {"db05", {406, 360}, "Water", "Water Database"},
         .run = keep_waters},
    Tool{.command = command::extra_database,
         .menus = {{{Menu::databases, "&Extra"}}},
         .button = {"db06", {486, 360}, "Extra", "Extra Database"},
         .run = keep_extras},

    Tool{.command = command::system_settings,
         .menus = {{{Menu::options, "&System Settings"}}},
         .run = edit_settings},
    Tool{.command = command::help_contents, .menus = {{{Menu::help, "&Contents"}}}, .help_page = contents_page},
    Tool{.command = command::tutorials, .menus = {{{Menu::help, "&Tutorials"}}}, .help_page = "tutorials"},
    Tool{.command = command::show_log, .menus = {{{Menu::help, "&Log"}}}, .run = open_log},
    Tool{.command = command::about, .menus = {{{Menu::help, "&About"}}}, .run = about},
};
// clang-format on

} // namespace

std::span<const Tool> tools() {
    return all_tools;
}

const Tool& tool_of(int command) {
    const auto* const found = std::find_if(all_tools.begin(), all_tools.end(),
                                           [&](const Tool& tool) { return tool.command == command; });
    assert(found != all_tools.end());
    return *found;
}

std::vector<MainScreenButton> main_screen_buttons() {
    std::vector<MainScreenButton> buttons;
    for (const auto& tool : all_tools)
        if (!tool.button.bitmap.empty()) buttons.push_back({tool.command, tool.button});
    return buttons;
}

} // namespace wortlex
