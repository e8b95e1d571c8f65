#include "desktop/window_table.h"

#include <algorithm>
#include <cassert>

namespace wortlex {
namespace {

constexpr std::array<int, 4> from_documents(int recipe, int session) {
    return {no_place, recipe, session, no_place};
}

constexpr std::array windows = {
    WindowInfo{"GENERIC", {"Wortlex Version 1.8.a"}, no_places, 0},
    WindowInfo{"HOPFORMULATYPEDIALOG", {"Type of Hop IBU Calculation Used"}, no_places, 0},
    WindowInfo{"HOPIBUFROMWIEGHTDIALOG", {"Hop IBU Calculator"}, {3, 3, 3}, 0},
    WindowInfo{"HOPIBUFROMWIEGHTDIALOG1", {"Hop IBU Calculator"}, {3, 3, 3}, 0},
    WindowInfo{"HOPSHORTTIMEDIALOG", {"Hop Time Degradation Calculator"}, {2, 2, 2}, 0},
    WindowInfo{"RECIPE4DIALOG", {"Recipe Formulation - Yeast and Water"}, from_documents(14, no_place), 0},
    WindowInfo{"RECIPEEXTRADIALOG",
               {"Recipe Formulation - Extra Ingredients and Notes"},
               from_documents(13, no_place),
               0},
    WindowInfo{"BATCHRECIPEDIALOG",
               {"Wortlex Brewing Session / Recipe Formulation and Modification"},
               from_documents(no_place, 21),
               0},
    WindowInfo{"BATCH4DIALOG", {"Brewing Session - Yeast and Water"}, from_documents(no_place, 23), 0},
    WindowInfo{"BATCHEXTRADIALOG",
               {"Brewing Session - Extra Ingredients and Notes"},
               from_documents(no_place, 24),
               0},
    WindowInfo{"RECIPEPREPRINTDIALOG", {"Recipe Print and Export Options"}, no_places, 0},
    WindowInfo{"BATCHPREPRINTDIALOG", {"Brewing Session Print and Export Options"}, no_places, 0},
    WindowInfo{
        "COMP_PREPRINTDIALOG", {"Competition Printout - Additional Competition Information"}, no_places, 0},
    WindowInfo{
        "COMP_PREPRINTDIALOG2", {"Competition Bottle Label Printout - Additional Information"}, no_places, 0},
    WindowInfo{"MALTSHORTEDITDIALOG", {"Edit Grain/Extract Amounts"}, from_documents(76, 77), 0},
    WindowInfo{"HOPSHORTEDITDIALOG", {"Hop Amounts"}, from_documents(78, 79), 0},
    WindowInfo{"HOPSHORTEDITDIALOG1", {"Hop Amounts"}, from_documents(78, 79), 0},
    WindowInfo{"EXTRASHORTEDITDIALOG", {"Extra Ingredient Edit"}, from_documents(80, 81), 0},
    WindowInfo{"GRAINLISTDETAIL", {"Individual Malt Gravity/Color Contribution"}, no_places, 0},
    WindowInfo{"RECIPESHELFDIALOG", {"Open Recipe"}, {102, 102, no_place}, 0},
    WindowInfo{"SETTODIALOG", {"Set To"}, no_places, 0},
    WindowInfo{"PREBOILDIALOG", {"Pre-Boil Calculator"}, from_documents(82, no_place), 0},
    WindowInfo{"BATCHPREBOILDIALOG", {"Pre-Boil Calculator"}, from_documents(no_place, 83), 0},
    WindowInfo{"BATCHEFFDIALOG", {"Efficiency Calculator"}, from_documents(no_place, 27), 0},
    WindowInfo{
        "BATCHYEASTINFO", {"Brewing Session - Fermentation Specifics"}, from_documents(no_place, 22), 0},
    WindowInfo{
        "BATCHBOTTLINGINFO", {"Brewing Session - Bottling and Kegging"}, from_documents(no_place, 25), 0},
    WindowInfo{"BATCHWATERNEEDSDIALOG", {"Brewing Session - Water Needed"}, from_documents(no_place, 30), 0},
    WindowInfo{"BATCHCHEMICALDIALOG",
               {"Brewing Session - Water Profile Calculator"},
               from_documents(no_place, 31),
               0},
    WindowInfo{
        "BATCHWATERTOTALSDIALOG", {"Brewing Session Water and Salt Totals"}, from_documents(no_place, 85), 0},
    WindowInfo{"BATCHNOTESDIALOG", {"Brewing Session Notes"}, from_documents(no_place, 26), 0},
    WindowInfo{"USERBOTTLEDATEDIALOG", {"Bottling/Kegging Date"}, from_documents(no_place, 87), 0},
    WindowInfo{"BATCHNATURALCARBDIALOG", {"Brewing Session - Natural Carbonation Calculator"}, no_places, 0},
    WindowInfo{"BATCHFORCEDCARBDIALOG", {"Brewing Session - Forced Carbonation Calculator"}, no_places, 0},
    WindowInfo{
        "MASHENTRYDIALOG", {"Recipe Formulation - Simple Mash Schedule"}, from_documents(15, no_place), 0},
    WindowInfo{"MASHENTRYDIALOG1",
               {"Brewing Session - Simple Mash Schedule and Infusion Specifics"},
               from_documents(no_place, 34),
               0},
    WindowInfo{"RECIPESTEPMASHDETAIL",
               {"Recipe Formulation - Complex Mash Schedule, Mash Designer"},
               from_documents(37, no_place),
               0},
    WindowInfo{"BATCHSTEPMASHDETAIL",
               {"Brewing Session - Complex Mash Schedule, Mash Designer"},
               from_documents(no_place, 29),
               0},
    WindowInfo{"STEPNAMEDIALOG", {"Mash Step Name"}, no_places, 0},
    WindowInfo{"WATERCALCDIALOG", {"Dough In Strike Water Temperature"}, no_places, 0},
    WindowInfo{"BATCHINVENTORY", {"Inventory Analysis For Brewing Session"}, from_documents(no_place, 28), 0},
    WindowInfo{"USERDATEDIALOG", {"Brewing Date"}, from_documents(no_place, 86), 0},
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
    WindowInfo{"SYSTEMDEFAULTDIALOG", {"Wortlex System Default Settings"}, from_main(44), 60000},
    WindowInfo{"SYSTEMCOMPDIALOG", {"Wortlex Competition Form Detail Settings"}, from_main(45), 2098},
    WindowInfo{"SYSTEMMASHDIALOG", {"System Settings - Mash System, Evaporation"}, from_main(46), 60002},
    WindowInfo{"SYSTEMEFFICIENTDIALOG", {"System Settings - Brewhouse Efficiency"}, from_main(47), 12015},
    WindowInfo{"SYSTEMEFFICIENTDIALOG_ADV",
               {"System Settings - Advanced Brewhouse Efficiency"},
               from_main(48),
               11121},
    WindowInfo{"SYSTEMGAUGEDIALOG", {"System Settings - Instrument Calibration"}, from_main(49), 12006},
    WindowInfo{
        "SYSTEMMEASUREDIALOG", {"System Settings - Measurements, Sizes and Precision"}, from_main(50), 60001},
    WindowInfo{"SYSTEMHOPDIALOG",
               {"System Settings - Hop Calculations, Utilization and Storage"},
               from_main(51),
               60003},
    WindowInfo{"SYSTEMTINSETHDIALOG", {"Tinseth Adjustment"}, no_places, 0},
    WindowInfo{"SYSTEMPREPRINTDIALOG", {"Printer And Miscellaneous Settings"}, from_main(52), 60005},
    WindowInfo{"SYSTEMCOLORCALIBRATE", {"System Settings - Color Swatch Calibration"}, from_main(53), 0},
    WindowInfo{"SYSTEMCOLORDEFAULTDIALOG",
               {"System Settings - System Colors, Bitmaps, Artwork"},
               from_main(54),
               60004},
    WindowInfo{"COLORSWATCHDIALOG", {"Color Swatch Detail"}, {55, 55, 55}, 0},
    WindowInfo{"COLORUTILITYDIALOG", {"Wortlex Color Spectrum Utility"}, from_main(56), 0},
    WindowInfo{"SYSTEMFILEDIRS", {"Default File Folders"}, from_main(98), 70003},
    WindowInfo{"FILEDIRNAGDIALOG", {" Wortlex Reminder Message! Auto Folder Saving."}, no_places, 0},
    WindowInfo{"SYSTEMBEERCOLOR", {"System Settings - Beer and Malt Color"}, from_main(99), 70002},
    // Of one gravity: a mash's, or (by use) that of dilution, boil off, and two pages of a session.
    WindowInfo{"BATCHHYDROMETERDIALOG", {"Hydrometer Correction Calculator"}, {88, 88, 88}, 0},
    WindowInfo{"BATCHYEASTHYDROMETERDIALOG",
               {"Hydrometer Correction Calculator", "Hydrometer Correction Calculator",
                "Hydrometer Correction Calculator", "Hydrometer Correction Calculator"},
               {96, 97, 89, 90},
               0,
               true},
    WindowInfo{"REFRACTOMETERDIALOG1_1",
               {"Refractometer - Runnings Stopped At SG", "Refractometer - Recorded Efficiency OG",
                "Refractometer - Recorded Original Gravity"},
               {91, 92, 93, no_place},
               0,
               true},
    WindowInfo{"REFRACTOMETERDIALOG2_2",
               {"Refractometer - Recorded Finishing Gravity"},
               from_documents(no_place, 94),
               0},
    WindowInfo{"REFRACTOMETERDIALOG3_3",
               {"Refractometer - %Alcohol, OG, Residual Extract"},
               from_documents(no_place, 95),
               0},
    WindowInfo{"WATERGRAPHDIALOG", {"Water Profile Graph"}, no_places, 0},
    WindowInfo{"MASHGRAPHDIALOG", {"Mash Graph"}, no_places, 0},
    WindowInfo{"BATCHDETAILMASHGRAPHDIALOG", {"Mash Graph"}, no_places, 0},
    WindowInfo{"BATCHMASHGRAPHDIALOG", {"Mash Graph"}, no_places, 0},
    WindowInfo{"WATERTOTALSDIALOG", {"Water Totals"}, from_main(84), 0},
    WindowInfo{"WATERSUGGESTDIALOG", {"Suggested Salts"}, no_places, 0},
    WindowInfo{"TIMELINEENTRYDIALOG", {"Time Line Comment"}, no_places, 0},
    WindowInfo{"PRINTPREVIEW", {"Print Preview"}, no_places, 0},
    WindowInfo{"HTMLDIALOG", {"HTML Theme Settings"}, no_places, 0},
    WindowInfo{"ABOUTDIALOG", {"About Wortlex"}, no_places, 0},
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
