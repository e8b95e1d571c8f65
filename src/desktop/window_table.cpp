#include "desktop/window_table.h"

#include <algorithm>
#include <cassert>

namespace wortlex {
namespace {

// A place from the main window, and one each from recipe and session.
constexpr std::array<int, 3> from_main(int slot) {
    return {slot, no_place, no_place};
}

constexpr std::array<int, 3> from_documents(int recipe, int session) {
    return {no_place, recipe, session};
}

constexpr std::array no_places = {no_place, no_place, no_place};

constexpr std::array windows = {
    WindowInfo{"GENERIC", {"Wortlex Version 1.8.a"}, no_places, 0},
    WindowInfo{"HOPFORMULATYPEDIALOG", {"Type of Hop IBU Calculation Used"}, no_places, 0},
    WindowInfo{"HOPIBUFROMWIEGHTDIALOG", {"Hop IBU Calculator"}, {3, 3, 3}, 0},
    WindowInfo{"HOPIBUFROMWIEGHTDIALOG1", {"Hop IBU Calculator"}, {3, 3, 3}, 0},
    WindowInfo{"HOPSHORTTIMEDIALOG", {"Hop Time Degradation Calculator"}, {2, 2, 2}, 0},
    WindowInfo{"RECIPEDIALOG", {"Wortlex Recipe Formulation"}, no_places, 0},
    // The lists set their own captions, by what they show.
    WindowInfo{"STYLETYPEDIALOG", {""}, from_main(38), 0},
    WindowInfo{"MALTSTYPEDIALOG", {""}, from_main(39), 0},
    WindowInfo{"HOPTYPEDIALOG", {""}, from_main(40), 0},
    WindowInfo{"YEASTTYPEDIALOG", {""}, from_main(41), 0},
    WindowInfo{"WATERTYPEDIALOG", {""}, from_main(42), 0},
    WindowInfo{"EXTRATYPEDIALOG", {""}, from_main(43), 0},
    WindowInfo{"STYLEENTRYDIALOG", {"AHA Style Entry", "BJCP Style Entry"}, from_main(57), 0},
    WindowInfo{"MALTTYPEENTRYDIALOG", {"Malt Entry"}, from_main(58), 0},
    WindowInfo{"HOPTYPEENTRYDIALOG", {"Hop Entry"}, from_main(59), 0},
    WindowInfo{"YEASTTYPEENTRYDIALOG", {"Yeast Entry"}, from_main(60), 0},
    WindowInfo{"WATERTYPEENTRYDIALOG", {"Water Profile Entry"}, from_main(61), 0},
    WindowInfo{"EXTRAENTRYDIALOG", {"Extra Engredients and Agents"}, from_main(62), 0},
    WindowInfo{"MALTINVENTORY", {"Malt Inventory"}, no_places, 0},
    WindowInfo{"HOPINVENTORY", {"Hop Inventory"}, no_places, 0},
    WindowInfo{"YEASTINVENTORY", {"Yeast Inventory"}, no_places, 0},
    WindowInfo{"EXTRAINVENTORY", {"Extra Ingredient Inventory"}, no_places, 0},
    WindowInfo{"WATER_CACO3", {"Alkalinity As CaCO3"}, no_places, 0},
    WindowInfo{"WATER_CAHARD", {"Ca Hardness As CaCO3"}, no_places, 0},
    WindowInfo{"WATER_MGHARD", {"Mg Hardness As CaCO3"}, no_places, 0},
    WindowInfo{"STYLEPICKDIALOG", {""}, from_documents(63, 64), 0},
    WindowInfo{"MALTCHOOSEDIALOG", {""}, from_documents(65, 66), 0},
    WindowInfo{"HOPCHOOSEDIALOG", {""}, {67, 68, 69}, 0},
    WindowInfo{"EXTRAPICKDIALOG", {""}, from_documents(70, 71), 0},
    WindowInfo{"YEASTPICKDIALOG", {""}, from_documents(72, 73), 0},
    WindowInfo{"WATERPICKDIALOG", {""}, from_documents(74, 75), 0},
};

} // namespace

const WindowInfo& window_info(std::string_view template_name) {
    const auto* const found = std::find_if(windows.begin(), windows.end(), [&](const WindowInfo& window) {
        return window.template_name == template_name;
    });
    assert(found != windows.end());
    return *found;
}

} // namespace wortlex
