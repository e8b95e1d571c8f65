#include "program/commands.h"

#include <array>
#include <utility>

namespace wortlex {
namespace {

template <class... Entries>
constexpr std::array<MenuEntry, sizeof...(Entries)> menu(Entries... entries) {
    return {entries...};
}

constexpr MenuEntry item(std::string_view caption, int number) {
    return {caption, number, {}};
}

constexpr MenuEntry submenu(std::string_view caption, std::span<const MenuEntry> entries) {
    return {caption, 0, entries};
}

constexpr auto new_menu =
    menu(item("&Recipe", command::new_recipe), item("&Brewing Session", command::new_session));
constexpr auto open_menu =
    menu(item("&Recipe", command::open_recipe), item("&Brewing Session", command::open_session));
constexpr auto file_menu = menu(submenu("&New", new_menu), submenu("&Open", open_menu),
                                item("Open &Recent", command::open_recent), item("E&xit", command::exit));

constexpr auto hydrometer_menu = menu(item("% &Alcohol, Attenuation and Residual Extract", command::alcohol),
                                      item("&Temperature Correction Calculator", command::hydrometer));
constexpr auto refractometer_menu =
    menu(item("&Temporary Refractometer Calibration", command::temporary_calibration),
         item("&Raw Wort Gravity", command::raw_wort_gravity),
         item("&Specific Gravity During Fermentation", command::fermentation_gravity),
         item("% &Alcohol, OG and Residual Extract", command::residual_extract),
         item("Refractometer &Overview", command::refractometer_overview));

// The calculators one by one, then by instrument; the latter have a menu of their own as well.
constexpr auto calculators_menu = menu(
    item("% &Alcohol", command::alcohol), item("&Boil Off Calculator", command::boil_off),
    item("&Carbonation Calculator", command::carbonation), item("&Dilution Calculator", command::dilution),
    item("Hop &IBU's", command::hop_ibu), item("Hop Time De&gradation", command::hop_time_degradation),
    item("&Hydrometer Calculator", command::hydrometer), item("&Mash Designer", command::mash_designer),
    item("&Strike Temperature", command::strike_temperature), item("&Units", command::units),
    item("&Water Needed", command::water_needed), item("Water &Profile", command::water_profile),
    submenu("H&ydrometer", hydrometer_menu), submenu("&Refractometer", refractometer_menu),
    item("Dat&e Calculator", command::date_calculator), item("&Time Line", command::time_line));
constexpr auto utilities_menu =
    menu(submenu("&Hydrometer", hydrometer_menu), submenu("&Refractometer", refractometer_menu));

constexpr auto databases_menu =
    menu(item("&Style", command::style_database), item("&Grain, Extract, Sugars", command::malt_database),
         item("&Hops", command::hop_database), item("&Yeast", command::yeast_database),
         item("&Water", command::water_database), item("&Extra", command::extra_database));
constexpr auto options_menu = menu(item("&System Settings", command::system_settings));
constexpr auto help_menu = menu(item("&Contents", command::help_contents),
                                item("&Tutorials", command::tutorials), item("&About", command::about));

constexpr auto main_bar = menu(submenu("&File", file_menu), submenu("&Calculators", calculators_menu),
                               submenu("&Utilities", utilities_menu), submenu("&Databases", databases_menu),
                               submenu("&Options", options_menu), submenu("&Help", help_menu));

constexpr auto document_file_menu =
    menu(item("&New", command::new_document), item("&Open", command::open_recipe),
         item("&Save", command::save), item("Save &As", command::save_as),
         item("&Print / Export", command::print), item("E&xit", command::close));
constexpr auto document_bar = menu(submenu("&File", document_file_menu));

} // namespace

std::span<const MenuEntry> main_menu() {
    return main_bar;
}

std::span<const MenuEntry> document_menu() {
    return document_bar;
}

void CommandTable::carry_out(int command, std::function<void()> action) {
    actions_[command] = std::move(action);
}

bool CommandTable::is_built(int command) const {
    return actions_.contains(command);
}

void CommandTable::start(int command) {
    const auto found = actions_.find(command);
    if (found == actions_.end()) return;
    const auto action = found->second; // a copy: it may put another action in its own place
    action();
}

} // namespace wortlex
